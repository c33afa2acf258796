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
    EXPECT_EQ(hand::column(list, 0), "Clam Tang - Yellow  Zoo");
    EXPECT_EQ(control<QLabel>(window, "StatusBar1_1").text(), "3 names loaded.");
    hand::clickHeading(list, 2);
    EXPECT_EQ(hand::column(list, 1), "Abc Tridac Zebra sp");
    hand::clickHeading(list, 2);
    click(*window.opt_Freshwater);
    EXPECT_EQ(hand::column(list, 1), "Para sp Astro sp") << "the other water comes in the same order";
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Reference, AMissingNameFileIsToldOfInTheWordsOfItsWater)
{
    const QString missing = "0|Names File Not Found!/48/The file containing the ";
    const auto told = [&] { return keeper.told().section(')', 0, 0); };
    for (const bool saltAlone : {true, false}) { // the freshwater one is looked for first
        saltAlone ? writeSalt() : writeFresh();
        auto &window = openBy<frm_LatintoCommon>("commonnames");
        EXPECT_EQ(told(), missing + "saltwater names (NAMESSW.TXT");
        EXPECT_EQ(window.lstv_Names->Count(), 0);
        click(*window.opt_Freshwater);
        EXPECT_EQ(told(), saltAlone ? missing + "freshwater names (NAMESFW.TXT" : QString("0"));
        EXPECT_EQ(window.lstv_Names->Count(), saltAlone ? 0 : 2);
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
                {1, "1", "3.7850"},
                {8, "12ab", "", noNumber},
                {6, "1,000", "1,000,000.0000"},
                {3, "1e308", "", "1|Oops!/48/The value to convert is too large."}};
    auto &window = openBy<frm_Conversions>("conversions");
    for (const auto &row : rows) {
        hand::type(*window.txt_FromValue, row.typed);
        window.lstv_Convert->Select(row.row);
        hand::clickRow(*window.lstv_Convert, row.row);
        EXPECT_EQ(window.txt_ToValue->text(), "") << "the result of another conversion";
        hand::press(Qt::Key_Return);
        EXPECT_EQ(window.txt_ToValue->text(), row.result);
        EXPECT_EQ(keeper.told(), row.told);
    }
    window.lstv_Convert->Select(0);
    mouse::click(window.cmd_Convert);
    EXPECT_EQ(keeper.told(), "0|Note!/64/Select a formula by clicking on it. ");
}
