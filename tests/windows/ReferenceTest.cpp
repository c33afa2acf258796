// The reference tools: names of animals and the conversion calculator.
#include <fstream>

#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolTip>

#include "Hands.h"
#include "reference/Conversions.h"
#include "reference/frm_Conversions.h"
#include "reference/frm_LatintoCommon.h"

namespace {

void writeNames(const char *file, std::initializer_list<std::pair<const char *, const char *>> names)
{
    std::ofstream out(file);
    for (const auto &[common, latin] : names)
        out << common << std::string(49 - std::string(common).size(), ' ') << latin << '\n';
}

void writeSalt()
{
    writeNames("NAMESSW.TXT", {{"Yellow Tang", "Zebrasoma flavescens"}, {"Clam", "Tridacna"}, {"Zoanthid", "Atest"}});
}
void writeFresh() { writeNames("NAMESFW.TXT", {{"Oscar", "Astronotus ocellatus"}, {"Blue Tang", "Notreal"}}); }

const QString missing =
    "0|Names File Not Found!/48/The file containing the %1 is missing or not in the correct format. "
    "You will not be able to view freshwater names. Contact Velmoor via email or download the file "
    "from the Velmoor Website at http://www.velmoor.example%2";
const QString saltMissing = missing.arg("saltwater names (NAMESSW.TXT)", " to obtain a copy of the file.");
const QString freshMissing = missing.arg("freshwater names (NAMESFW.TXT)", "");

QString panel(QWidget &window) { return control<QLabel>(window, "StatusBar1_1").text(); }

} // namespace

TEST(Names, EitherFileIsListedInTheOrderThatWasChosen)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    writeSalt();
    writeFresh();
    auto &main = keeper.startProgram();
    hand::openLogbook(main);
    hand::choose(main, *main.mnu_Tools, "mnu_ToolsCommonNames");
    auto &window = Form<frm_LatintoCommon>();
    ListView &list = *window.lstv_Names;
    EXPECT_FALSE(main.mnu_FilePrint->isEnabled());
    const QWidget &frame = *window.parentWidget();
    EXPECT_TRUE(frame.parentWidget()->rect().contains(frame.geometry())) << "seen whole beside the logbook";
    EXPECT_EQ(hand::column(list, 0), "Clam Tang - Yellow  Zoanthid");
    EXPECT_EQ(panel(window), "3 names loaded.");
    EXPECT_EQ(list.SelectedItem(), 1);
    for (QWidget *part : {list.viewport(), list.horizontalHeader()->viewport()}) {
        QHelpEvent over(QEvent::ToolTip, QPoint(20, 8), part->mapToGlobal(QPoint(20, 8)));
        QToolTip::hideText();
        QApplication::sendEvent(part, &over);
        EXPECT_EQ(QToolTip::text(), "Click column headings to sort") << part->parent()->metaObject()->className();
    }
    hand::clickHeading(list, 1);
    EXPECT_EQ(hand::column(list, 0), "Zoanthid Tang - Yellow  Clam");
    hand::clickHeading(list, 2);
    EXPECT_EQ(hand::column(list, 1), "Atest Tridacna Zebrasoma flavescens");
    hand::clickHeading(list, 2);
    EXPECT_EQ(list.SelectedItem(), 2) << "the selection stays with its animal";
    click(*window.opt_Freshwater);
    EXPECT_EQ(hand::column(list, 1), "Notreal Astronotus ocellatus") << "the other water comes in the same order";
    EXPECT_EQ(list.SelectedItem(), 1);
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(Names, AMissingFileIsToldOfInTheWordsOfItsWater)
{
    const struct
    {
        void (*write)();
        QString atSalt, atFresh;
        int salt, fresh;
    } rows[] = {{[] {}, saltMissing, freshMissing, 0, 0},
                {writeSalt, saltMissing, freshMissing, 0, 0}, // the freshwater file is looked for first
                {writeFresh, saltMissing, "0", 0, 2}};
    for (const auto &row : rows) {
        Keeper keeper;
        keeper.addTank("Reef", "1");
        row.write();
        auto &main = keeper.startProgram();
        hand::click<QToolButton>(main, "commonnames");
        auto &window = Form<frm_LatintoCommon>();
        EXPECT_EQ(keeper.told(), row.atSalt);
        EXPECT_EQ(window.lstv_Names->Count(), row.salt);
        click(*window.opt_Freshwater);
        EXPECT_EQ(keeper.told(), row.atFresh);
        EXPECT_EQ(window.lstv_Names->Count(), row.fresh);
        EXPECT_FALSE(QApplication::overrideCursor());
    }
}

TEST(Conversions, ThereAndBackAgainIsNearlyTheSame)
{
    const auto plain = [](QString unit) { return unit.remove(' ').remove('>'); };
    int pairs = 0;
    for (const Conversion &there : conversions)
        for (const Conversion &back : conversions) {
            const QString a = there.key, b = back.key;
            if (plain(UnitFrom(a)) != plain(UnitTo(b)) || plain(UnitTo(a)) != plain(UnitFrom(b)))
                continue;
            ++pairs;
            EXPECT_NEAR(Convert_Formula(b, Convert_Formula(a, 50)), 50, 0.05) << there.key;
        }
    EXPECT_EQ(pairs, 36); // four are offered in one direction only
    EXPECT_EQ(Convert_Formula("Millilitres (mL)>Litres (L)", 500), 0.5);
    EXPECT_EQ(Convert_Formula("Millilitres (mL)>litres (L)", 500), 0);
}

TEST(Conversions, AValueIsConvertedAndOneThatIsNoneIsRefused)
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
                {6, "1,000", "1,000,000.0000"},
                {19, "-40", "-40.0000"},
                {8, "", "", noNumber},
                {8, "12ab", "", noNumber},
                {3, "1e308", "", "1|Oops!/48/The value to convert is too large."}};
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    hand::click<QToolButton>(main, "conversions");
    auto &window = Form<frm_Conversions>();
    for (const auto &row : rows)
        for (QWidget *by : {static_cast<QWidget *>(window.lstv_Convert), static_cast<QWidget *>(window.txt_FromValue),
                            static_cast<QWidget *>(window.cmd_Convert)}) {
            SCOPED_TRACE(row.typed);
            hand::type(*window.txt_FromValue, row.typed);
            window.lstv_Convert->Select(row.row);
            hand::clickRow(*window.lstv_Convert, row.row);
            EXPECT_EQ(window.txt_ToValue->text(), "");
            by->setFocus();
            hand::press(by == window.cmd_Convert ? Qt::Key_Enter : Qt::Key_Return);
            EXPECT_EQ(window.txt_ToValue->text(), row.result);
            EXPECT_EQ(keeper.told(), row.told);
            EXPECT_TRUE(row.told == "0" || window.txt_FromValue->hasFocus());
        }
}

TEST(Conversions, LabelsFollowTheSelectionAndTheListSorts)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    hand::choose(main, *main.mnu_Tools, "mnu_ToolsConversions");
    auto &window = Form<frm_Conversions>();
    ListView &list = *window.lstv_Convert;
    const auto labels = [&]() -> QString {
        return control<QLabel>(window, "lbl_From").text() + '|' + window.lbl_To->text();
    };
    EXPECT_EQ(labels(), "Gallons (US gal)|Litres (L)");
    hand::clickHeading(list, 1);
    EXPECT_EQ(list.Text(1, 0), "Centimeters (cm)");
    EXPECT_EQ(labels(), "Gallons (US gal)|Litres (L)");
    hand::clickHeading(list, 1);
    EXPECT_EQ(list.Text(1, 0), "Teaspoon (tsp)");
    hand::clickHeading(list, 2);
    EXPECT_EQ(list.Text(1, 1), "Centimeters (cm)");
    hand::clickRow(list, 1);
    EXPECT_EQ(labels(), "Inches (in)|Centimeters (cm)");
    hand::press(Qt::Key_Down);
    EXPECT_EQ(labels(), list.Text(2, 0) + '|' + list.Text(2, 1));
    list.Select(0);
    mouse::click(window.cmd_Convert);
    EXPECT_EQ(keeper.told(), "0|Note!/64/Select a formula by clicking on it. ");
    hand::press(Qt::Key_Escape);
    EXPECT_FALSE(Forms::current().loaded<frm_Conversions>());
}
