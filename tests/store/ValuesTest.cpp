// Tests of column values: storing and reading every type, conversions, cells that do not fit their column, and the sort
// order of texts.
#include <algorithm>

#include "StoreFixture.h"

using ValuesTest = StoreTest;

TEST_F(ValuesTest, EveryTypeIsReadBackAsStored)
{
    const QString odd =
        QString::fromUtf8("a \"b\" 'c' ?\r\n\xf0\x9f\x90\xa0 \xce\xa9 \xd7\xa9 [x];--") + QChar(0) + "after";
    const std::pair<const char *, std::vector<Value>> cases[] = {
        {"Comment", {odd, QString(""), QString("12"), QString(300000, u'x'), Value()}},
        {"logdate", {QDate(1, 1, 1), QDate(9999, 12, 31), QDate(2004, 2, 29), Value()}},
        {"logtime", {QTime(0, 0, 0), QTime(23, 59, 59)}},
        {"ph", {8.0, 0.1 + 0.2, -1e300, Value()}}};
    for (const auto &[column, values] : cases)
        for (const Value &value : values) {
            db->Execute("DELETE FROM WATERLOG");
            adding("WATERLOG", {{column, value}}).Update();
            Recordset found = db->OpenRecordset(QString("SELECT * FROM WATERLOG WHERE %1 IS ?").arg(column), {value});
            ASSERT_EQ(found.RecordCount(), 1) << column << ' ' << value.text().left(99).toStdString();
            EXPECT_EQ(found[column].value(), value) << column;
        }
}

TEST_F(ValuesTest, ValuesAreConvertedToTheTypeOfTheColumn)
{
    const int conversion = int(Failure::DataTypeConversion), overflow = int(Failure::Overflow);
    const std::tuple<const char *, Value, int, const char *> cases[] = {
        {"SchedStartDate", QString("2/9/03"), 0, "2003-02-09"},
        {"SchedStartDate", QString("31/12/03"), conversion, ""},
        {"SchedStartDate", QString(""), conversion, ""},
        {"SchedStartDate", QDate(10000, 1, 1), conversion, ""},
        {"SchedStartDate", 37000.0, conversion, ""},
        {"SchedInterval", QString("1,000"), 0, "1000"},
        {"SchedInterval", QString("2.5"), 0, "3"},
        {"SchedInterval", QString("2147483648"), overflow, ""},
        {"SchedInterval", QString("12ab"), conversion, ""},
        {"SchedTask", QDate(2003, 2, 1), 0, "02/01/2003"},
    };
    for (const auto &[column, given, failure, stored] : cases) {
        db->Execute("DELETE FROM MAINTSCHED");
        Recordset rows = adding("MAINTSCHED", {{"schedcomment", QString("kept")}});
        EXPECT_EQ(numberOf([&] { rows[column].setValue(given); }), failure) << given.text().toStdString();
        rows.Update();
        EXPECT_EQ(asked(QString("SELECT %1 FROM MAINTSCHED WHERE schedcomment = 'kept'").arg(column)), stored);
    }
    Recordset water = adding("WATERLOG", {{"logtime", QString("01:02:03 pm")}, {"ph", QString(" 8.4 ")}});
    EXPECT_EQ(water["logtime"].value(), Value(QTime(13, 2, 3)));
    EXPECT_EQ(numberOf([&] { water["logtime"].setValue(QString("13:02:03 pm")); }), conversion);
    EXPECT_EQ(numberOf([&] { water["ph"].setValue(HUGE_VAL); }), overflow);
}

TEST_F(ValuesTest, CellsThatDoNotFitAreReadAsText)
{
    const struct
    {
        const char *literal, *column, *text;
    } cases[] = {{"'much'", "ph", "much"},
                 {"x'414243'", "ph", "ABC"},
                 {"'2003-02-30'", "logdate", "2003-02-30"},
                 {"37654", "logdate", "37654"},
                 {"'25:00:00'", "logtime", "25:00:00"},
                 {"x'ff'", "Comment", "\xef\xbf\xbd"}};
    for (const auto &[literal, column, text] : cases) {
        db->Execute("DELETE FROM WATERLOG");
        db->Execute(QString("INSERT INTO WATERLOG (nitrate, %1) VALUES (5, %2)").arg(column, literal));
        const QString cell = asked(QString("SELECT quote(%1) FROM WATERLOG").arg(column));
        Recordset recordset = db->OpenForUpdate("WATERLOG");
        const auto rows = recordset.rows();
        const int at = recordset.columnIndex(column);
        EXPECT_EQ(recordset[column].value(), Value(QString::fromUtf8(text))) << literal;
        EXPECT_EQ(rows->text(0, at), QString::fromUtf8(text)) << literal;
        EXPECT_TRUE(rows->number(0, at) == 0 && !rows->date(0, at).isValid()) << literal;
        recordset.Edit();
        recordset["nitrate"].setValue(6.0);
        recordset.Update();
        EXPECT_EQ(asked(QString("SELECT quote(%1) FROM WATERLOG WHERE nitrate = 6").arg(column)), cell) << literal;
    }
}

TEST_F(ValuesTest, TextsAreSortedCaseInsensitively)
{
    const QString order =
        QString::fromUtf8("| |_x|Apfel|apfelbaum|REEF|Reef|reef|STRASSE|Strasse 2|straße|Zebra|Äpfel|äpfel");
    QStringList names = order.split('|'), read;
    std::ranges::reverse(names);
    for (const QString &name : names)
        adding("TANKLST", {{"tankname", name}, {"tankid", name}}).Update();
    for (Recordset rows = db->OpenRecordset("SELECT tankname FROM TANKLST ORDER BY tankname COLLATE CASEBLIND");
         !rows.EOF_(); rows.MoveNext())
        read << rows["tankname"].text();
    EXPECT_EQ(read.join('|'), order);
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM TANKLST WHERE tankname = ?", {QString("reef")}).RecordCount(), 1);
}
