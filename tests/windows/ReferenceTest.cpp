// The reference tools: names of animals and the conversion calculator.
#include <fstream>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "Hands.h"
#include "reference/Conversions.h"
#include "reference/frm_Conversions.h"
#include "reference/frm_LatintoCommon.h"

class Reference : public ::testing::Test
{
protected:
    template <class Window> Window &openBy(const char *button)
    {
        hand::click<QToolButton>(main, button);
        return Form<Window>();
    }
    static void write(const char *file, std::initializer_list<std::pair<std::string, const char *>> names)
    {
        std::ofstream out(file);
        for (auto [common, latin] : names)
            out << (common += std::string(49 - common.size(), ' ')) << latin << '\n';
    }
    static void writeSalt() { write("NAMESSW.TXT", {{"Yellow Tang", "Zebra sp"}, {"Clam", "Tridac"}, {"Zoo", "Abc"}}); }
    static void writeFresh() { write("NAMESFW.TXT", {{"Oscar", "Astro sp"}, {"Blue Tang", "Para sp"}}); }

    Keeper keeper;
    frm_OMKMDIMain &main = (keeper.addTank("Reef", "1"), keeper.startProgram());
};

TEST_F(Reference, EitherNameFileIsListedInTheOrderThatWasChosen)
{
    writeSalt();
    writeFresh();
    hand::openLogbook(main);
    auto &window = openBy<frm_LatintoCommon>("commonnames");
    ListView &list = *window.lstv_Names;
    const QWidget &frame = *window.parentWidget();
    EXPECT_TRUE(frame.parentWidget()->rect().contains(frame.geometry())) << "seen whole beside the logbook";
    EXPECT_FALSE(main.mnu_FilePrint->isEnabled());
    EXPECT_EQ(hand::column(list, 0), "Clam Tang - Yellow  Zoo");
    EXPECT_EQ(control<QLabel>(window, "StatusBar1_1").text(), "3 names loaded.");
    hand::clickHeading(list, 1);
    EXPECT_EQ(hand::column(list, 0), "Zoo Tang - Yellow  Clam");
    hand::clickHeading(list, 2);
    EXPECT_EQ(hand::column(list, 1), "Abc Tridac Zebra sp");
    hand::clickHeading(list, 2);
    EXPECT_EQ(list.SelectedItem(), 2) << "the selection stays with its animal";
    click(*window.opt_Freshwater);
    EXPECT_EQ(hand::column(list, 1), "Para sp Astro sp") << "the other water comes in the same order";
    EXPECT_EQ(list.SelectedItem(), 1);
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Reference, AMissingNameFileIsToldOfInTheWordsOfItsWater)
{
    const QString missing = "0|Names File Not Found!/48/The file containing the %1 is missing or not in the correct "
                            "format. You will not be able to view freshwater names. Contact Velmoor via email or "
                            "download the file from the Velmoor Website at http://www.velmoor.example%2";
    const QString salt = missing.arg("saltwater names (NAMESSW.TXT)", " to obtain a copy of the file.");
    const QString fresh = missing.arg("freshwater names (NAMESFW.TXT)", "");
    const struct
    {
        void (*write)();
        QString atFresh;
        int count;
    } rows[] = {
        {[] {}, fresh, 0}, {writeSalt, fresh, 0}, {writeFresh, "0", 2}}; // the freshwater one is looked for first
    for (const auto &row : rows) {
        row.write();
        auto &window = openBy<frm_LatintoCommon>("commonnames");
        EXPECT_EQ(keeper.told(), salt);
        EXPECT_EQ(window.lstv_Names->Count(), 0);
        click(*window.opt_Freshwater);
        EXPECT_EQ(keeper.told(), row.atFresh);
        EXPECT_EQ(window.lstv_Names->Count(), row.count);
        EXPECT_FALSE(QApplication::overrideCursor());
        window.close();
        QFile::remove("NAMESSW.TXT");
    }
}

TEST(Conversions, ThereAndBackAgainIsNearlyTheSame)
{
    const auto plain = [](QString unit) { return unit.remove(' ').remove('>'); };
    int pairs = 0;
    for (const Conversion &there : conversions)
        for (const Conversion &back : conversions)
            if (plain(UnitFrom(there.key)) == plain(UnitTo(back.key)) &&
                plain(UnitTo(there.key)) == plain(UnitFrom(back.key))) {
                ++pairs;
                EXPECT_NEAR(Convert_Formula(back.key, Convert_Formula(there.key, 50)), 50, 0.05) << there.key;
            }
    EXPECT_EQ(pairs, 36); // four are offered in one direction only
    EXPECT_EQ(Convert_Formula("Millilitres (mL)>Litres (L)", 500), 0.5);
    EXPECT_EQ(Convert_Formula("Millilitres (mL)>litres (L)", 500), 0);
}

TEST_F(Reference, AValueIsConvertedByEnterAndOneThatIsNoneIsRefused)
{
    const QString noNumber = "1|Oops!/48/The value to convert must be a number.";
    const struct
    {
        int row;
        const char *typed, *result;
        QString told = "0";
    } rows[] = {{19, "100", "212.0000"},
                {20, "212", "100.0000"},
                {1, "1", "3.7850"},
                {2, "3.785", "0.9992"},
                {8, "", "", noNumber},
                {8, "12ab", "", noNumber},
                {6, "1,000", "1,000,000.0000"},
                {3, "1e308", "", "1|Oops!/48/The value to convert is too large."}};
    auto &window = openBy<frm_Conversions>("conversions");
    for (const auto &row : rows)
        for (const char *by : {"lstv_Convert", "txt_FromValue", "cmd_Convert"}) {
            SCOPED_TRACE(row.typed);
            hand::type(*window.txt_FromValue, row.typed);
            window.lstv_Convert->Select(row.row);
            hand::clickRow(*window.lstv_Convert, row.row);
            EXPECT_EQ(window.txt_ToValue->text(), "") << "the result of another conversion";
            control<QWidget>(window, by).setFocus();
            hand::press(Qt::Key_Return);
            EXPECT_EQ(window.txt_ToValue->text(), row.result);
            EXPECT_EQ(keeper.told(), row.told);
            EXPECT_TRUE(row.told == "0" || window.txt_FromValue->hasFocus());
        }
    window.lstv_Convert->Select(0);
    mouse::click(window.cmd_Convert);
    EXPECT_EQ(keeper.told(), "0|Note!/64/Select a formula by clicking on it. ");

    hand::clickHeading(*window.lstv_Convert, 1);
    hand::clickRow(*window.lstv_Convert, 1);
    EXPECT_EQ(window.lbl_To->text(), "Inches (in)");
    hand::press(Qt::Key_Down);
    EXPECT_EQ(window.lbl_From->text(), "Cubic Centimeters (cc)");
    hand::press(Qt::Key_Escape);
    EXPECT_FALSE(Forms::current().loaded<frm_Conversions>());
}
