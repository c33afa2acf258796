// The reference tools: names of animals and the conversion calculator.
#include "Desk.h"
#include "logic/reference/Conversions.h"
#include "support/TestFiles.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"

class Reference : public Desk
{
protected:
    template <class Window> Window &openBy(const char *button)
    {
        hand::click<QToolButton>(*main, button);
        return Form<Window>();
    }
    static void write(const char *fileName, std::initializer_list<std::pair<QByteArray, QByteArray>> names)
    {
        QByteArray records;
        for (const auto &[common, latin] : names)
            records += common.leftJustified(49) + latin + '\n';
        writeFile(fileName, records);
    }
};

TEST_F(Reference, EitherNameFileIsListedInTheOrderThatWasChosenAndAMissingOneIsToldOf)
{
    const QString missing = "0|Names File Not Found!/48/The file containing the %1";
    const auto told = [&] { return keeper.told().section(" names (", 0, 0); };
    write("NAMESSW.TXT", {{"Yellow Tang", "Zebra sp"}, {"Clam", "Tridac"}, {"Zoo", "Abc"}});
    for (const bool both : {false, true}) {
        auto &window = openBy<frm_LatintoCommon>("commonnames");
        EXPECT_EQ(told(), both ? QString("0") : missing.arg("saltwater"));
        ListView &list = *window.lstv_Names;
        EXPECT_EQ(hand::column(list, 0), both ? "Clam Tang - Yellow  Zoo" : "") << "freshwater is looked for first";
        EXPECT_EQ(list.SelectedItem(), both ? 1 : 0);
        hand::clickHeading(list, 2);
        hand::clickHeading(list, 2);
        click(*window.opt_Freshwater);
        EXPECT_EQ(told(), both ? QString("0") : missing.arg("freshwater"));
        EXPECT_EQ(hand::column(list, 1), both ? "Para sp Astro sp" : "") << "the other water comes in the same order";
        window.close();
        write("NAMESFW.TXT", {{"Oscar", "Astro sp"}, {"Blue Tang", "Para sp"}});
    }
}

TEST_F(Reference, AValueIsConvertedByEnterAndOneThatIsNoneIsRefused)
{
    const std::tuple<int, const char *, const char *, const char *> rows[] = {
        {19, "100", "212.0000", "0"},
        {1, "1", "3.7850", "0"},
        {8, "12ab", "", "1|Oops!/48/The value to convert must be a number."},
        {6, "1,000", "1,000,000.0000", "0"},
        {3, "1e308", "", "1|Oops!/48/The value to convert is too large."}};
    auto &window = openBy<frm_Conversions>("conversions");
    for (const auto &[row, typed, result, told] : rows) {
        hand::type(*window.txt_FromValue, typed);
        window.lstv_Convert->Select(row);
        hand::clickRow(*window.lstv_Convert, row);
        EXPECT_EQ(window.txt_ToValue->text(), "") << "the result of another conversion";
        hand::press(Qt::Key_Return);
        EXPECT_EQ(window.txt_ToValue->text() + keeper.told(), QString(result) + told);
    }
}
