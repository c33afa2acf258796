// The reference tools: names of animals and the conversion calculator.
#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"

using Reference = Desk;

TEST_F(Reference, EitherNameFileIsListedInTheOrderThatWasChosenAndAMissingOneIsToldOf)
{
    const QString missing = "0|Names File Not Found!/48/The file containing the %1";
    const auto told = [&] { return keeper.told().section(" names (", 0, 0); };
    const auto name = [](const char *common, const char *latin) -> QByteArray {
        return QByteArray(common).leftJustified(49) + latin + '\n';
    };
    writeFile("NAMESSW.TXT", name("Yellow Tang", "Zebra sp") + name("Clam", "Tridac") + name("Zoo", "Abc"));
    for (const bool both : {false, true}) {
        hand::click<QToolButton>(*main, "commonnames");
        auto &window = Form<frm_LatintoCommon>();
        EXPECT_EQ(told(), both ? QString("0") : missing.arg("saltwater"));
        ListView &list = *window.lstv_Names;
        EXPECT_EQ(hand::column(list, 0), both ? "Clam Tang - Yellow  Zoo" : "") << "freshwater is looked for first";
        hand::clickHeading(list, 2);
        hand::clickHeading(list, 2);
        click(*window.opt_Freshwater);
        EXPECT_EQ(told(), both ? QString("0") : missing.arg("freshwater"));
        EXPECT_EQ(hand::column(list, 1), both ? "Para sp Astro sp" : "") << "the other water comes in the same order";
        window.close();
        writeFile("NAMESFW.TXT", name("Oscar", "Astro sp") + name("Blue Tang", "Para sp"));
    }
}

TEST_F(Reference, AValueIsConvertedByEnterAndOneThatIsNoneIsRefused)
{
    const std::tuple<int, const char *, const char *, const char *> rows[] = {
        {19, "100", "212.0000", "0"},
        {8, "12ab", "", "1|Oops!/48/The value to convert must be a number."},
        {6, "1,000", "1,000,000.0000", "0"},
        {3, "1e308", "", "1|Oops!/48/The value to convert is too large."},
    };
    hand::click<QToolButton>(*main, "conversions");
    auto &window = Form<frm_Conversions>();
    for (const auto &[row, typed, result, told] : rows) {
        hand::type(*window.txt_FromValue, typed);
        window.lstv_Convert->Select(row);
        hand::clickRow(*window.lstv_Convert, row);
        EXPECT_EQ(window.txt_ToValue->text(), "") << "the result of another conversion";
        hand::press(Qt::Key_Return);
        EXPECT_EQ(window.txt_ToValue->text() + keeper.told(), QString(result) + told);
    }
}
