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
        {"logdate", {QDate(1, 1, 1), QDate(9999, 12, 31), Value()}},
        {"logtime", {QTime(0, 0, 0), QTime(23, 59, 59)}},
        {"ph", {8.0, 0.1 + 0.2, -1e300, Value()}}};
    for (const auto &[column, values] : cases)
        for (const Value &value : values) {
            Recordset row = db->OpenForAppend("WATERLOG");
            row.AddNew();
            row[column].setValue(value);
            row.Update();
            EXPECT_EQ(db->OpenRecordset("SELECT * FROM WATERLOG")[column].value(), value) << column;
            db->Execute("DELETE FROM WATERLOG");
        }
}

TEST_F(ValuesTest, ValuesAreConvertedToTheTypeOfTheColumn)
{
    const int conversion = int(Failure::DataTypeConversion), overflow = int(Failure::Overflow);
    const std::tuple<const char *, Value, int, const char *> cases[] = {
        {"SchedStartDate", QString("2/9/03"), 0, "2003-02-09"},
        {"SchedStartDate", QString("31/12/03"), conversion, ""},
        {"SchedStartDate", QDate(10000, 1, 1), conversion, ""},
        {"SchedInterval", QString("1,000"), 0, "1000"},
        {"SchedInterval", QString("2.5"), 0, "3"},
        {"SchedInterval", QString("2147483648"), overflow, ""},
        {"SchedInterval", QString("12ab"), conversion, ""},
        {"SchedTask", QDate(2003, 2, 1), 0, "02/01/2003"},
    };
    for (const auto &[column, given, failure, stored] : cases) {
        db->Execute("DELETE FROM MAINTSCHED");
        Recordset rows = db->OpenForAppend("MAINTSCHED");
        rows.AddNew();
        EXPECT_EQ(numberOf([&] { rows[column].setValue(given); }), failure) << given.text().toStdString();
        rows.Update();
        EXPECT_EQ(asked(QString("SELECT %1 FROM MAINTSCHED").arg(column)), stored);
    }
}

TEST_F(ValuesTest, CellsThatDoNotFitAreReadAsTextAndKept)
{
    for (const auto &[column, literal, text] : {std::tuple("ph", "'much'", "much"),
                                                {"ph", "x'414243'", "ABC"},
                                                {"logdate", "'2003-02-30'", "2003-02-30"},
                                                {"logdate", "37654", "37654"},
                                                {"logtime", "'25:00:00'", "25:00:00"}}) {
        db->Execute("DELETE FROM WATERLOG");
        db->Execute(QString("INSERT INTO WATERLOG (%1) VALUES (%2)").arg(column, literal));
        Recordset rows = db->OpenForUpdate("WATERLOG");
        EXPECT_EQ(rows[column].value(), Value(QString(text))) << literal;
        rows.Edit();
        rows["nitrate"].setValue(6.0);
        rows.Update();
        EXPECT_EQ(asked(QString("SELECT nitrate FROM WATERLOG WHERE %1 = %2").arg(column, literal)), "6.0") << literal;
    }
}

TEST_F(ValuesTest, TextsAreSortedCaseInsensitively)
{
    const QString order =
        QString::fromUtf8("| |_x|Apfel|apfelbaum|REEF|Reef|reef|STRASSE|Strasse 2|straße|Zebra|Äpfel|äpfel");
    QStringList names = order.split('|'), read;
    std::ranges::reverse(names);
    for (const QString &name : names)
        db->Execute("INSERT INTO TANKLST (tankname, tankid) VALUES (?, ?)", {name, name});
    const auto rows = db->OpenRecordset("SELECT tankname FROM TANKLST ORDER BY tankname COLLATE CASEBLIND").rows();
    for (int row = 0; row < rows->count(); ++row)
        read << rows->text(row, 0);
    EXPECT_EQ(read.join('|'), order);
}
