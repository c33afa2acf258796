// What goes into a column and what comes out: every type there and back, conversions, cells that do not fit, and the
// order of texts.
#include "StoreFixture.h"

#include <algorithm>

namespace {

using ValuesTest = StoreTest;

TEST_F(ValuesTest, EveryTypeComesBackAsItWentIn)
{
    const QString odd =
        QString::fromUtf8("a \"b\" 'c' ?\r\n\xf0\x9f\x90\xa0 \xce\xa9 \xd7\xa9 [x];--") + QChar(0) + "after";
    const std::pair<const char *, Value> cases[] = {{"Comment", odd},
                                                    {"Comment", QString("")},
                                                    {"Comment", QString("12")},
                                                    {"Comment", QString(300000, u'x')},
                                                    {"Comment", Value()},
                                                    {"logdate", QDate(1, 1, 1)},
                                                    {"logdate", QDate(9999, 12, 31)},
                                                    {"logdate", QDate(2004, 2, 29)},
                                                    {"logtime", QTime(0, 0, 0)},
                                                    {"logtime", QTime(23, 59, 59)},
                                                    {"logdate", Value()},
                                                    {"ph", 8.0},
                                                    {"ph", 0.1 + 0.2},
                                                    {"ph", -1e300},
                                                    {"ph", Value()}};
    for (const auto &[column, value] : cases) {
        db->Execute("DELETE FROM WATERLOG");
        add("WATERLOG", {{column, value}});
        EXPECT_EQ(db->OpenRecordset("SELECT * FROM WATERLOG")[column].value(), value) << column;
        Recordset found = db->OpenRecordset(QString("SELECT * FROM WATERLOG WHERE %1 IS ?").arg(column), {value});
        EXPECT_EQ(found.RecordCount(), 1) << column << ' ' << value.text().left(99).toStdString();
    }
}

TEST_F(ValuesTest, TextsBecomeWhatTheColumnHoldsOrAreRefused)
{
    const int conversion = int(Failure::DataTypeConversion), overflow = int(Failure::Overflow);
    const struct
    {
        const char *column;
        Value given;
        int failure;
        const char *stored; ///< as another program reads it
    } cases[] = {
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
    for (const auto &row : cases) {
        db->Execute("DELETE FROM MAINTSCHED");
        Recordset rows = adding("MAINTSCHED", {{"schedcomment", QString("kept")}});
        EXPECT_EQ(numberOf([&] { rows[row.column].setValue(row.given); }), row.failure)
            << row.column << ' ' << row.given.text().toStdString();
        rows.Update();
        const QString sql =
            QString("SELECT coalesce(%1, '') FROM MAINTSCHED WHERE schedcomment = 'kept'").arg(row.column);
        EXPECT_EQ(OtherProgram(path()).run(sql.toUtf8()), row.stored) << row.column;
    }
    Recordset water = adding("WATERLOG", {{"logtime", QString("01:02:03 pm")}, {"ph", QString(" 8.4 ")}});
    EXPECT_EQ(water["logtime"].value(), Value(QTime(13, 2, 3)));
    EXPECT_EQ(numberOf([&] { water["logtime"].setValue(QString("13:02:03 pm")); }), conversion);
    EXPECT_EQ(numberOf([&] { water["ph"].setValue(HUGE_VAL); }), overflow);
}

TEST_F(ValuesTest, CellsThatDoNotFitAreTextAndNothingIsLost)
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
    for (const auto &row : cases) {
        db->Execute("DELETE FROM WATERLOG");
        db->Execute(QString("INSERT INTO WATERLOG (tankname, %1) VALUES ('T', %2)").arg(row.column, row.literal));
        Recordset recordset = db->OpenRecordset("SELECT * FROM WATERLOG");
        const auto rows = recordset.rows();
        const int column = recordset.columnIndex(row.column);
        EXPECT_EQ(recordset[row.column].value(), Value(QString::fromUtf8(row.text))) << row.literal;
        EXPECT_EQ(rows->text(0, column), QString::fromUtf8(row.text)) << row.literal;
        EXPECT_EQ(rows->number(0, column), 0) << row.literal;
        EXPECT_FALSE(rows->date(0, column).isValid()) << row.literal;
        recordset.Edit();
        recordset["tankname"].setValue(QString("U"));
        recordset.Update();
        const QString sql =
            QString("SELECT count(*) FROM WATERLOG WHERE tankname = 'U' AND %1 IS %2").arg(row.column, row.literal);
        EXPECT_TRUE(row.column == QString("logdate") || OtherProgram(path()).run(sql.toUtf8()) == "1") << row.literal;
    }
}

TEST_F(ValuesTest, TheOrderThatAPersonSeesIsCaseBlindAndTotal)
{
    const QStringList names = {"",        " ",           "Apfel",     "apfelbaum", "REEF",  "Reef",       "reef",
                               "STRASSE", "stra\u00dfe", "Strasse 2", "_x",        "Zebra", "\u00c4pfel", "\u00e4pfel"};
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(), [](const QString &a, const QString &b) {
        const int folded = a.toCaseFolded().compare(b.toCaseFolded());
        return folded != 0 ? folded < 0 : a.toUtf8() < b.toUtf8();
    });
    for (const QString &name : names)
        add("TANKLST", {{"tankname", name}, {"tankid", name}});
    QStringList read;
    for (Recordset rows = db->OpenRecordset("SELECT tankname FROM TANKLST ORDER BY tankname COLLATE CASEBLIND");
         !rows.EOF_(); rows.MoveNext())
        read << rows["tankname"].text();
    EXPECT_EQ(read, sorted) << read.join('|').toStdString();
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM TANKLST WHERE tankname = ?", {QString("reef")}).RecordCount(), 1);
}

} // namespace
