// Tests of column values: texts as they are, conversions, and the sort order of texts.
#include <algorithm>

#include "StoreFixture.h"

using ValuesTest = StoreTest;

TEST_F(ValuesTest, ATextIsReadBackAsStored)
{
    const QString odd = QString::fromUtf8("a \"b\" 'c' ?\r\n\xf0\x9f\x90\xa0 \xd7\xa9 [x];--") + QChar(0) + "after";
    for (const QString &text : {odd, QString(""), QString("12"), QString(300000, u'x')}) {
        db->Execute("DELETE FROM WATERLOG");
        db->Execute("INSERT INTO WATERLOG (Comment) VALUES (?)", {text});
        EXPECT_EQ(db->OpenRecordset("SELECT * FROM WATERLOG")["Comment"].value(), Value(text));
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

TEST_F(ValuesTest, TextsAreSortedCaseInsensitively)
{
    const QString order =
        QString::fromUtf8("| |_x|Apfel|apfelbaum|REEF|Reef|reef|STRASSE|Strasse 2|straße|Zebra|Äpfel|äpfel");
    QStringList names = order.split('|');
    std::ranges::reverse(names);
    for (const QString &name : names)
        db->Execute("INSERT INTO TANKLST (tankname, tankid) VALUES (?, ?)", {name, name});
    const QString sorted = "SELECT group_concat(tankname, '|') AS x FROM "
                           "(SELECT tankname FROM TANKLST ORDER BY tankname COLLATE CASEBLIND)";
    EXPECT_EQ(db->OpenRecordset(sorted)["x"].text(), order);
}
