// Tests of Printer (pages that end by themselves, cells that wrap) and of RunReport (copies, chosen pages, the
// preview).
#include <gtest/gtest.h>

#include "platform/core/Printer.h"
#include "platform/core/PrintJob.h"
#include "support/ScriptedDoors.h"

namespace {

/// A printer whose pages are read back. In size 7.2 a letter is 5 dots wide and 10 high, and a line takes 12.
struct Bench
{
    Bench() { page.Font = {"Arial", 7.2, false, false, false}; }
    const PrintedPage &on(size_t number) { return documents.back().pages.at(number); }

    std::vector<PrintedDocument> documents;
    RecordedPages pages{documents};
    Printer page{pages, "Title"};
};

/// The texts from one page to another.
QStringList texts(const Bench &bench, size_t from, size_t to)
{
    QStringList texts;
    for (size_t number = from; number <= to; ++number)
        for (const PrintedText &text : bench.documents.back().pages.at(number).texts)
            texts << text.text;
    return texts;
}

/// A report of three pages, which sets landscape format itself.
const Report threePages{"Print Log", "Log", true, [] { return true; },
                        [](Printer &page) {
                            page.setLandscape(true);
                            page.Print("1");
                            for (const char *number : {"2", "3"}) {
                                page.NewPage();
                                page.Print(number);
                            }
                            page.EndDoc();
                            page.setLandscape(false);
                        }};

/// What was printed: the pages of each document, with bars between documents.
QString printed(ScriptedDoors &doors)
{
    QStringList documents;
    for (const PrintedDocument &document : std::exchange(doors.documents, {})) {
        EXPECT_TRUE(document.ended);
        QString pages = document.landscape ? "landscape " : "portrait ";
        for (const PrintedPage &page : document.pages)
            pages += page.texts.empty() ? "empty" : page.texts.front().text;
        documents << pages;
    }
    return documents.join('|');
}

} // namespace

TEST(PrintJob, EachCopyHasTheChosenPagesAlone)
{
    ScriptedDoors doors;
    const QString beyond = "0|Note!/64/The pages 4 to 5 were chosen, but the last page is 3. Nothing was printed.";
    const struct
    {
        PrintDialogAnswer answer;
        QString printed, told = "0";
    } cases[] = {
        {{1, 0, 0, {}}, "landscape 123"}, {{2, 2, 2, {}}, "landscape 2|landscape 2"},
        {{1, 1, 2, {}}, "landscape 12"},  {{1, 3, 9, {}}, "landscape 3"},
        {{2, 4, 5, {}}, "", beyond},
    };
    for (const auto &[answer, pages, told] : cases) {
        SCOPED_TRACE(pages.toStdString());
        doors.printers = {answer};
        const bool isPrinted = RunReport(threePages, PrintTarget::Printer) == PrintOutcome::Printed;
        EXPECT_EQ(isPrinted, !pages.isEmpty());
        EXPECT_EQ(printed(doors), pages);
        EXPECT_EQ(doors.told(), told);
    }
}

TEST(PrintJob, APreviewBeginsAsTheReportLiesAndIsPrintedAsItWasSeen)
{
    ScriptedDoors doors;
    RunReport(threePages, PrintTarget::Window);
    EXPECT_EQ(printed(doors), "landscape 123");
    doors.printedFromPreview = {2, 2, 3, {{}, {}, true}}; // turned to portrait there
    RunReport(threePages, PrintTarget::Window);
    EXPECT_EQ(printed(doors), "landscape 123|portrait 23|portrait 23");
    EXPECT_TRUE(doors.printDialogs.empty()) << "the preview has asked";
}

TEST(PrintedPages, CellsWrapInsideTheirColumnAndLoseNothing)
{
    Bench b;
    const QString words = "the quick brown fox jumps over the lazy dog", longWord(45, 'x');
    b.page.PrintRow({{0, 50, words, false}, {60, 110, longWord, false}, {120, 170, "one\ntwo", false}});
    b.page.Print("next");
    b.page.EndDoc();
    std::map<int, QStringList> columns;
    for (const PrintedText &text : b.on(0).texts) {
        EXPECT_LE(text.right, text.x + 50) << text.text.toStdString();
        columns[int(text.x)] << text.text;
    }
    EXPECT_EQ(columns[0].join(' '), words + " next");
    EXPECT_EQ(columns[60].join(""), longWord);
    EXPECT_EQ(columns[120], QStringList({"one", "two"}));
    EXPECT_EQ(b.on(0).find("two")->y, 12);
    EXPECT_EQ(b.on(0).find("next")->y, 12 * 5) << "below the highest cell";
}

TEST(PrintedPages, KeepsARowTogetherUnlessItIsHigherThanAPage)
{
    Bench b;
    b.page.EndDoc();
    EXPECT_TRUE(b.documents.empty()) << "nothing printed, no document";
    b.page.CurrentY = 980;
    b.page.PrintRow({{0, 100, "a\nb\nc", false}});
    EXPECT_EQ(texts(b, 0, 1), QStringList({"a", "b", "c"}));
    EXPECT_EQ(b.on(1).texts.size(), 3u);
    b.page.NewPage();
    QStringList lines;
    for (int i = 0; i < 200; ++i)
        lines << QString::number(i);
    b.page.PrintRow({{0, 100, lines.join('\n'), false}});
    b.page.EndDoc();
    EXPECT_EQ(texts(b, 2, 4), lines);
}
