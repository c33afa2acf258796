// The plain logic of reading an old file, without the library: values, texts and the head of a file.
#include <limits>

#include "oldengine/OldFile.h"
#include "oldengine/OldValues.h"
#include "OldFiles.h"

TEST(OldValues, EveryTypeOfTheEngineBecomesAValueOfOurs)
{
    const double never = std::numeric_limits<double>::quiet_NaN();
    const struct
    {
        OldType type;
        QByteArray bytes;
        ColumnKind as;
        QString text; ///< "none" if the bytes are not a value
    } rows[] = {
        {OldType::Single, bytesOf(7.8F), ColumnKind::Double, "7.8"},
        {OldType::Single, bytesOf(float(never)), ColumnKind::Double, "none"},
        {OldType::Byte, "\xff", ColumnKind::Double, "255"},
        {OldType::Integer, bytesOf(qint16(-32768)), ColumnKind::Integer, "-32768"},
        {OldType::Long, bytesOf(qint32(70000)), ColumnKind::Double, "70000"},
        {OldType::Currency, bytesOf(qint64(-1)), ColumnKind::Double, "-0.0001"},
        {OldType::Decimal, "\x80" + QByteArray(12, '\0') + bytesOf(1234), ColumnKind::Double, "-12.34"},
        {OldType::Integer, bytesOf(qint16(-1)), ColumnKind::Boolean, "1"},
        {OldType::Date, bytesOf(35801.9999999), ColumnKind::Date, "01/06/1998"},
        {OldType::Date, bytesOf(-1.25), ColumnKind::Date, "12/29/1899"},
        {OldType::Date, bytesOf(-1.25), ColumnKind::Time, "06:00:00 AM"},
        {OldType::Date, bytesOf((86399 + 0.7) / 86400), ColumnKind::Time, "11:59:59 PM"},
        {OldType::Date, bytesOf((86398 + 0.7) / 86400), ColumnKind::Time, "11:59:59 PM"},
        {OldType::Date, bytesOf(1e300), ColumnKind::Date, "none"},
        {OldType::Date, bytesOf(never), ColumnKind::Time, "none"},
        {OldType::Memo,
         QByteArray("\xff\xfe"
                    "a\0\xac\x20"
                    "\0b",
                    8),
         ColumnKind::Text, "a€b"},
        {OldType::Text, "abc", ColumnKind::Text, "none"},
    };
    const OldTextReader texts(0);
    for (const auto &row : rows) {
        const auto value = ReadOldValue(row.bytes, row.type, 2, row.as, texts);
        EXPECT_TRUE(CanBeRead(row.type, row.as));
        EXPECT_EQ(value ? value->text() : "none", row.text) << "row " << &row - rows;
    }
    EXPECT_FALSE(CanBeRead(OldType::Text, ColumnKind::Double));
    EXPECT_FALSE(CanBeRead(OldType(11), ColumnKind::Text)) << "a picture";
}

TEST(OldValues, TextsInACodePage)
{
    const std::tuple<int, QByteArray, QString> rows[] = {
        {1252, "caf\xe9 \x80 \x85 \x81", "café € … \u0081"},
        {1251, "\xcf\xf0\xf3\xe4", "Пруд"},
        {932, "\x8b\xe0\x8b\x9b", "金魚"},
        {9999, "\xbd inch", "½ inch"},
    };
    for (const auto &[page, bytes, text] : rows)
        EXPECT_EQ(OldTextReader(page).read(bytes), text) << page;
}

TEST(OldFile, TheHeadTellsTheCodePage)
{
    QByteArray head = oldFiles[0].bytes().first(oldHeaderSize);
    EXPECT_EQ(ReadOldHeader(head).codePage, 1252);
    head[0x3c] = char(head[0x3c] ^ 1252 ^ 1251);
    EXPECT_EQ(ReadOldHeader(head).codePage, 1251);
}
