#include <gtest/gtest.h>

#include "platform/Printer.h"
#include "support/ScriptedDoors.h"

namespace {

/// A printer whose pages are read back; a line of size 7.2 is 10 dots high and takes 12, a letter is 5 wide.
struct Bench
{
    Bench() { page.Font = {"Arial", 7.2, false, false, false}; }
    const PrintedPage &on(size_t number) { return documents.back().pages.at(number); }

    std::vector<PrintedDocument> documents;
    RecordedPages pages{documents};
    Printer page{pages, "Title"};
};

QStringList textsOf(const PrintedPage &page)
{
    QStringList texts;
    for (const PrintedText &text : page.texts)
        texts << text.text;
    return texts;
}

} // namespace

TEST(PrintedPages, FeedsItselfAboveTheFootAndTheNextPageIsWhole)
{
    Bench b;
    b.page.EndDoc();
    EXPECT_TRUE(b.documents.empty()) << "nothing printed, no document";
    b.page.setFoot(100); // eight lines fit
    for (int i = 1; i <= 100; ++i)
        b.page.Print(QString::number(i));
    b.page.EndDoc();
    ASSERT_EQ(b.documents.back().pages.size(), 3u);
    EXPECT_EQ(b.on(0).texts.size(), 8u);
    EXPECT_EQ(b.on(1).texts.size(), 83u); // 1000 dots
    EXPECT_EQ(b.on(1).texts.front().text, "9");
    EXPECT_EQ(b.on(1).texts.front().y, 0);
}

TEST(PrintedPages, CellsWrapInsideTheirColumnAndLoseNothing)
{
    Bench b;
    const QString words = "the quick brown fox jumps over the lazy dog";
    const QString longWord(45, 'x');
    b.page.PrintRow({{0, 50, words, false}, {60, 110, longWord, false}, {120, 170, "one\ntwo", false}});
    b.page.Print("next");
    b.page.EndDoc();
    QString left, middle;
    for (const PrintedText &text : b.on(0).texts) {
        EXPECT_LE(text.right, text.x < 60 ? 50 : text.x < 120 ? 110 : 170) << text.text.toStdString();
        if (text.text != "next")
            (text.x < 60 ? left : middle) += text.x < 60 ? text.text + ' ' : text.x < 120 ? text.text : QString();
    }
    EXPECT_EQ(left.trimmed(), words);
    EXPECT_EQ(middle, longWord);
    EXPECT_EQ(b.on(0).find("two")->y, 12);
    EXPECT_EQ(b.on(0).find("next")->y, 12 * 5); // below the highest cell
}

TEST(PrintedPages, KeepsARowTogetherUnlessItIsHigherThanAPage)
{
    Bench b;
    b.page.CurrentY = 980;
    b.page.PrintRow({{0, 100, "a\nb\nc", false}});
    EXPECT_EQ(textsOf(b.on(1)), QStringList({"a", "b", "c"}));
    b.page.NewPage();
    QStringList lines;
    for (int i = 0; i < 200; ++i)
        lines << QString::number(i);
    b.page.PrintRow({{0, 100, lines.join('\n'), false}});
    b.page.EndDoc();
    EXPECT_EQ(textsOf(b.on(2)) + textsOf(b.on(3)) + textsOf(b.on(4)), lines);
}
