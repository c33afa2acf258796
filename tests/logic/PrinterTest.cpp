// Tests of Printer (pages that end by themselves, cells that wrap) and of RunReport (copies, chosen pages).
#include <gtest/gtest.h>

#include "platform/core/Printer.h"
#include "platform/core/PrintJob.h"
#include "support/ScriptedDoors.h"

namespace {

/// A printer whose pages are read back. In size 7.2 a letter is 5 dots wide and 10 high, and a line takes 12.
struct Bench
{
    Bench() { page.Font = {"Arial", 7.2, false, false, false}; }
    QStringList texts(size_t number)
    {
        QStringList texts;
        for (const PrintedText &text : documents.back().pages.at(number).texts)
            texts << text.text;
        return texts;
    }

    std::vector<PrintedDocument> documents;
    RecordedPages pages{documents};
    Printer page{pages, "Title"};
};

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

TEST(PrintJob, EachCopyHasTheChosenPagesAloneAndThePanelSaysWhereItWent)
{
    ScriptedDoors doors;
    const QString beyond = "0|Note!/64/The pages 4 to 5 were chosen, but the last page is 3. Nothing was printed.";
    const QString sent = "Log: sent to the printer.", twoSent = "Log: 2 copies sent to the printer.";
    const struct
    {
        std::optional<PrintDialogAnswer> answer;
        QString printed, panel, told = "0";
    } cases[] = {
        {{{1, 0, 0, {}}}, "landscape 123", sent},
        {{{2, 2, 2, {}}}, "landscape 2|landscape 2", twoSent},
        {{{1, 1, 2, {}}}, "landscape 12", sent},
        {{{1, 3, 9, {}}}, "landscape 3", sent},
        {{{2, 4, 5, {}}}, "", "Ready.", beyond},
        {{}, "", "Ready."},
        {{{1, 2, 3, {{}, {}, true}}}, "portrait 23", sent}, // as it was turned in the preview
    };
    for (const auto &[answer, pages, panel, told] : cases) {
        SCOPED_TRACE(pages.toStdString());
        doors.printers = {answer};
        QStringList said;
        const auto outcome =
            RunReport(threePages, PrintTarget::Printer, [&said](const QString &text) { said << text; });
        EXPECT_EQ(outcome == PrintOutcome::Printed, !pages.isEmpty());
        EXPECT_EQ(printed(doors), pages);
        EXPECT_EQ(doors.told(), told);
        EXPECT_EQ(said.constFirst(), answer ? "Log: preparing..." : "Ready.");
        EXPECT_EQ(said.constLast(), panel);
    }
}

TEST(PrintJob, AReportThatFailsHalfWayPrintsNothing)
{
    ScriptedDoors doors;
    Report failing = threePages;
    failing.print = [](Printer &page) {
        page.Print("1");
        page.NewPage();
        page.Print("2");
        throw RuntimeFailure(Failure::DeviceError);
    };
    for (const auto target : {PrintTarget::Printer, PrintTarget::File, PrintTarget::DefaultPrinter}) {
        doors.printers = {PrintDialogAnswer{2}};
        doors.files = {"log.pdf"};
        QString panel;
        EXPECT_THROW(RunReport(failing, target, [&panel](const QString &text) { panel = text; }), RuntimeFailure);
        EXPECT_EQ(printed(doors), "");
        EXPECT_EQ(panel, "Ready.");
    }
}

TEST(PrintedPages, CellsWrapInsideTheirColumnAndLoseNothing)
{
    Bench b;
    const QString words = "the quick brown fox jumps over the lazy dog", longWord(45, 'x');
    b.page.PrintRow({{0, 50, words, false}, {60, 110, longWord, false}, {120, 170, "one\ntwo", false}});
    b.page.Print("next");
    b.page.EndDoc();
    std::map<int, QStringList> columns;
    for (const PrintedText &text : b.documents.back().pages.at(0).texts) {
        EXPECT_LE(text.right, text.x + 50) << text.text.toStdString();
        columns[int(text.x)] << text.text;
        EXPECT_EQ(text.text == "next", text.y > 50) << "below the highest cell, of five lines";
    }
    EXPECT_EQ(columns[0].join(' '), words + " next");
    EXPECT_EQ(columns[60].join(""), longWord);
    EXPECT_EQ(columns[120], QStringList({"one", "two"}));
}

TEST(PrintedPages, KeepsARowTogetherUnlessItIsHigherThanAPage)
{
    Bench b;
    b.page.EndDoc();
    EXPECT_TRUE(b.documents.empty()) << "nothing printed, no document";
    b.page.CurrentY = 980;
    b.page.PrintRow({{0, 100, "a\nb\nc", false}});
    EXPECT_EQ(b.texts(1), QStringList({"a", "b", "c"}));
    b.page.NewPage();
    QStringList lines;
    for (int i = 0; i < 200; ++i)
        lines << QString::number(i);
    b.page.PrintRow({{0, 100, lines.join('\n'), false}});
    b.page.EndDoc();
    EXPECT_EQ(b.texts(2) + b.texts(3) + b.texts(4), lines);
}
