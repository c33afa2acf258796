// Tests of the CSV reader alone.
#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "data/CsvReader.h"
#include "support/ScriptedDoors.h"
#include "support/TestFiles.h"

namespace {

struct CsvTest : testing::Test
{
    QString path() const { return folder.filePath("a.csv"); }

    /// The records as "line:[value][value]", with ~ for nothing, and at last "line!" for a fault.
    QString read(const QByteArray &content, char delimiter = ',')
    {
        writeFile(path(), content);
        CsvReader reader(path(), delimiter);
        QString all;
        while (reader.next()) {
            all += QString::number(reader.line()) + ':';
            for (const CsvCell &cell : reader.cells())
                all += cell.isNull ? QString("~")
                                   : '[' + QString::fromUtf8(cell.bytes.data(), qsizetype(cell.bytes.size())) + ']';
            all += ' ';
        }
        EXPECT_FALSE(reader.next()) << "it has ended";
        if (reader.fault())
            all += QString::number(reader.fault()->line) + '!';
        return all.trimmed();
    }

    QTemporaryDir folder;
};

TEST_F(CsvTest, RecordsAreReadWithTheirLines)
{
    const std::pair<QByteArray, QString> cases[] = {
        {"\xef\xbb\xbf", ""},
        {"\xef\xbb\xbf"
         "a,b\r\n1,2\r\n",
         "1:[a][b] 2:[1][2]"},
        {"a\nb", "1:[a] 2:[b]"},
        {"a\rb\r", "1:[a] 2:[b]"},
        {"\r\n\n\ra,b\n\n\nc,d\n\n", "4:[a][b] 7:[c][d]"},
        {"a,,\"\"\n,\n", "1:[a]~[] 2:~~"},
        {"a,\"b\nc\r\nd\re\",f\ng\n", "1:[a][b\nc\r\nd\re][f] 5:[g]"},
        {"\"a\"\"b\",\" c \", d \n", "1:[a\"b][ c ][ d ]"},
        {"a,b\n1,2\n3,\"x", "1:[a][b] 2:[1][2] 3!"},
        {"a,b\n1,\"2\n\"\n3,4\"5\n6,7\n", "1:[a][b] 2:[1][2\n] 4!"},
        {"a\n\"b\"c\n", "1:[a] 2!"},
        {"a\n\n\"b\n\n c \"d\"\n", "1:[a] 5!"},
    };
    for (const auto &[content, expected] : cases)
        EXPECT_EQ(read(content), expected) << content.constData();
    EXPECT_EQ(read("a;b,c\n", ';'), "1:[a][b,c]");
    EXPECT_EQ(read("a\t\tb\n", '\t'), "1:[a]~[b]");
}

// A value, a line end or a quotation mark may be anywhere where the file is cut into blocks.
TEST_F(CsvTest, TheCutsOfTheBlocksDoNotShow)
{
    for (int shift = 0; shift < 12; ++shift) {
        QByteArray content = "h\r\n" + QByteArray(shift, 'x') + "\r\n";
        QString expected = shift > 0 ? "1:[h] 2:[" + QString(shift, 'x') + "]" : QString("1:[h]");
        for (int line = 3; content.size() < 70'000; line += 3) {
            content += "ab,\"c\r\nd\"\"e\"\r\n\r\n";
            expected += QString(" %1:[ab][c\r\nd\"e]").arg(line);
        }
        ASSERT_EQ(read(content), expected) << shift;
    }
}

} // namespace
