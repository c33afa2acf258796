// Tests of Printer (pages that end by themselves, cells that wrap) and of RunReport (copies, chosen pages, the
// preview).
#include <gtest/gtest.h>

#include "platform/core/PageSpool.h"
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

/// What a report says in the panel.
struct Panel
{
    QStringList texts;
    TellPanel tell = [this](const QString &text) { texts << text; };
};

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
        {{{1, 0, 0, {}}}, "landscape 123", sent}, {{{2, 2, 2, {}}}, "landscape 2|landscape 2", twoSent},
        {{{1, 1, 2, {}}}, "landscape 12", sent},  {{{1, 3, 9, {}}}, "landscape 3", sent},
        {{{2, 4, 5, {}}}, "", "Ready.", beyond},  {{}, "", "Ready."},
    };
    for (const auto &[answer, pages, panel, told] : cases) {
        SCOPED_TRACE(pages.toStdString());
        doors.printers = {answer};
        Panel said;
        const bool isPrinted = RunReport(threePages, PrintTarget::Printer, said.tell) == PrintOutcome::Printed;
        EXPECT_EQ(isPrinted, !pages.isEmpty());
        EXPECT_EQ(printed(doors), pages);
        EXPECT_EQ(doors.told(), told);
        EXPECT_EQ(said.texts.constLast(), panel);
        EXPECT_EQ(said.texts.constFirst(), answer ? "Log: preparing..." : "Ready.");
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
        Panel said;
        EXPECT_THROW(RunReport(failing, target, said.tell), RuntimeFailure);
        EXPECT_EQ(printed(doors), "");
        EXPECT_EQ(said.texts.constLast(), "Ready.");
    }
}

TEST(PrintJob, APreviewBeginsAsTheReportLiesAndIsPrintedAsItWasSeen)
{
    ScriptedDoors doors;
    Panel said;
    RunReport(threePages, PrintTarget::Window, said.tell);
    EXPECT_EQ(printed(doors), "landscape 123");
    EXPECT_EQ(said.texts.constLast(), "Ready.");
    doors.printedFromPreview = {2, 2, 3, {{}, {}, true}}; // turned to portrait there
    RunReport(threePages, PrintTarget::Window, said.tell);
    EXPECT_EQ(printed(doors), "landscape 123|portrait 23|portrait 23");
    EXPECT_TRUE(doors.printDialogs.empty()) << "the preview has asked";
    EXPECT_EQ(said.texts.constLast(), "Log: 2 copies sent to the printer.");
}

TEST(PageSpool, DrawsEachPageAsItWasPrinted)
{
    const auto print = [](PageSink &pages) {
        Printer page(pages, "Title");
        for (int number = 1; number <= 3; ++number) {
            page.Font = {number == 2 ? "Times" : "Arial", 7.2 * number, number == 1, number == 3, number == 2};
            page.PrintRow(
                {{0, 300, QStringLiteral("Page %1, \u00e9\u4e2d").arg(number)}, {310.5, 500, "long words wrap"}});
            page.PaintPicture(number, 20, 30, 40, [](QPainter &, const QSizeF &) {});
            if (number < 3)
                page.NewPage();
        }
        page.EndDoc();
    };
    const auto describe = [](const PrintedPage &page) {
        QStringList all;
        for (const PrintedText &t : page.texts)
            all << QStringLiteral("%1 %2 %3 %4 %5%6%7 %8")
                       .arg(t.x)
                       .arg(t.y)
                       .arg(t.font.name)
                       .arg(t.font.size)
                       .arg(t.font.bold)
                       .arg(t.font.italic)
                       .arg(t.font.underline)
                       .arg(t.text);
        for (const QRectF &p : page.pictures)
            all << QStringLiteral("%1 %2 %3 %4").arg(p.x()).arg(p.y()).arg(p.width()).arg(p.height());
        return all.join('\n');
    };
    std::vector<PrintedDocument> direct, drawn;
    RecordedPages straight(direct), again(drawn);
    print(straight);
    PageSpool spool(again, true);
    print(spool);
    ASSERT_EQ(spool.pages(), 3);
    EXPECT_TRUE(drawn.empty()) << "only measured so far";
    for (const int page : {3, 1, 2}) {
        again.beginDocument(spool.title());
        spool.draw(page, again);
        EXPECT_EQ(describe(drawn.back().pages.front()), describe(direct.at(0).pages.at(std::size_t(page) - 1)));
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
