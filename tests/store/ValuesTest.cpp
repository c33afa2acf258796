// What goes into a column and what comes out: every type there and back, conversions, cells that do not fit, and the
// order of texts.
#include "StoreFixture.h"

#include <algorithm>

#include "store/Collation.h"

namespace {

using ValuesTest = StoreTest;

TEST_F(ValuesTest, EveryTypeComesBackAsItWentIn)
{
    const QString odd =
        QString::fromUtf8("a \"b\" 'c' ?\r\n\xf0\x9f\x90\xa0 \xce\xa9 \xd7\xa9 [x];--") + QChar(0) + "after";
    const struct
    {
        const char *table, *column;
        Value value;
    } cases[] = {
        {"WATERLOG", "Comment", odd},
        {"WATERLOG", "Comment", QString("")},
        {"WATERLOG", "Comment", QString(" ")},
        {"WATERLOG", "Comment", QString("12")},
        {"WATERLOG", "Comment", QString(300000, u'x')},
        {"WATERLOG", "Comment", Value()},
        {"WATERLOG", "logdate", QDate(1, 1, 1)},
        {"WATERLOG", "logdate", QDate(9999, 12, 31)},
        {"WATERLOG", "logdate", QDate(2004, 2, 29)},
        {"WATERLOG", "logtime", QTime(0, 0, 0)},
        {"WATERLOG", "logtime", QTime(23, 59, 59)},
        {"WATERLOG", "logdate", Value()},
        {"WATERLOG", "ph", 8.0},
        {"WATERLOG", "ph", 0.1 + 0.2},
        {"WATERLOG", "ph", -1e300},
        {"WATERLOG", "ph", Value()},
        {"MAINTSCHED", "SchedInterval", -2147483648LL},
        {"MAINTSCHED", "SchedInterval", 40000},
        {"CONFIG", "default_salt", true},
        {"CONFIG", "default_salt", false},
    };
    for (const auto &row : cases) {
        db->Execute(QString("DELETE FROM %1").arg(row.table));
        add(row.table, {{row.column, row.value}});
        Recordset rows = db->OpenRecordset(QString("SELECT * FROM %1").arg(row.table));
        EXPECT_EQ(rows[row.column].value(), row.value) << row.column << ' ' << row.value.text().toStdString();
        Recordset found =
            db->OpenRecordset(QString("SELECT * FROM %1 WHERE %2 IS ?").arg(row.table, row.column), {row.value});
        EXPECT_EQ(found.RecordCount(), 1) << row.column << ' ' << row.value.text().toStdString();
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
        {"SchedStartDate", QString("02/29/00"), 0, "2000-02-29"},
        {"SchedStartDate", QString("31/12/03"), conversion, ""},
        {"SchedStartDate", QString(""), conversion, ""},
        {"SchedStartDate", QDate(), conversion, ""},
        {"SchedStartDate", QDate(10000, 1, 1), conversion, ""},
        {"SchedStartDate", 37000.0, conversion, ""},
        {"SchedStartDate", QTime(1, 2), conversion, ""},
        {"SchedInterval", QString("1,000"), 0, "1000"},
        {"SchedInterval", QString("2.5"), 0, "3"},
        {"SchedInterval", QString("2147483648"), overflow, ""},
        {"SchedInterval", QString("1e999"), overflow, ""},
        {"SchedInterval", QString("12ab"), conversion, ""},
        {"SchedInterval", QString(""), conversion, ""},
        {"SchedInterval", QDate(2003, 1, 1), conversion, ""},
        {"SchedTask", 8.5, 0, "8.5"},
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
    EXPECT_EQ(water["ph"].value(), Value(8.4));
    EXPECT_EQ(numberOf([&] { water["logtime"].setValue(QString("13:02:03 pm")); }), conversion);
    EXPECT_EQ(numberOf([&] { water["ph"].setValue(HUGE_VAL); }), overflow);
}

TEST_F(ValuesTest, CellsThatDoNotFitAreTextAndNothingIsLost)
{
    const struct
    {
        const char *literal, *column, *text;
    } cases[] = {
        {"'much'", "ph", "much"},
        {"x'414243'", "ph", "ABC"},
        {"'2003-02-30'", "logdate", "2003-02-30"},
        {"'2003-2-3'", "logdate", "2003-2-3"},
        {"'0000-01-01'", "logdate", "0000-01-01"},
        {"37654", "logdate", "37654"},
        {"''", "logdate", ""},
        {"'25:00:00'", "logtime", "25:00:00"},
        {"x'ff'", "Comment", "\xef\xbf\xbd"},
        {"'9:00:00'", "logtime", "9:00:00"},
    };
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
        EXPECT_FALSE(rows->time(0, column).isValid()) << row.literal;
        recordset.Edit();
        recordset["tankname"].setValue(QString("U"));
        recordset.Update();
        const QString sql =
            QString("SELECT count(*) FROM WATERLOG WHERE tankname = 'U' AND %1 IS %2").arg(row.column, row.literal);
        EXPECT_TRUE(row.column == QString("logdate") || OtherProgram(path()).run(sql.toUtf8()) == "1") << row.literal;
    }
}

TEST_F(ValuesTest, ManyRowsKeepTheirOwnTexts)
{
    {
        Database::Transaction transaction(*db);
        for (int i = 0; i < 500; ++i)
            add("LIVESTOCK", {{"animalname", QString("A%1").arg(i / 3)},
                              {"Comment", i % 7 ? Value(QString(i % 7, u'c')) : Value()}});
        transaction.commit();
    }
    const auto rows = db->OpenRecordset("SELECT animalname, Comment, quantity FROM LIVESTOCK").rows();
    ASSERT_EQ(rows->count(), 500);
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(rows->text(i, 0), QString("A%1").arg(i / 3));
        ASSERT_EQ(rows->text(i, 1), QString(i % 7, u'c'));
        ASSERT_EQ(rows->isNull(i, 1), i % 7 == 0);
        ASSERT_TRUE(rows->isNull(i, 2) && rows->number(i, 2) == 0);
    }
}

TEST_F(ValuesTest, AValueReadAsWhatItIsNotFails)
{
    const int null = int(Failure::InvalidUseOfNull), mismatch = int(Failure::TypeMismatch);
    const struct
    {
        Value value;
        int asNumber, asDate, asTime;
    } cases[] = {
        {Value(), null, null, null},
        {Value(QString("")), mismatch, mismatch, mismatch},
        {Value(QString("1,000")), 0, mismatch, mismatch},
        {Value(QString("2/3/04")), mismatch, 0, mismatch},
        {Value(QString("2004-02-03")), mismatch, 0, mismatch},
        {Value(QString("10:00:00 pm")), mismatch, mismatch, 0},
        {Value(3), 0, mismatch, mismatch},
        {Value(QDate(2004, 2, 3)), mismatch, 0, mismatch},
        {Value(QTime(22, 0)), mismatch, mismatch, 0},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(numberOf([&] { (void)row.value.toDouble(); }), row.asNumber) << row.value.text().toStdString();
        EXPECT_EQ(numberOf([&] { (void)row.value.toDate(); }), row.asDate) << row.value.text().toStdString();
        EXPECT_EQ(numberOf([&] { (void)row.value.toTime(); }), row.asTime) << row.value.text().toStdString();
    }
    EXPECT_EQ(Value(2.5).toInteger(), 3);
    EXPECT_EQ(Value(-2.5).toInteger(), -3);
    EXPECT_EQ(numberOf([] { (void)Value(1e19).toInteger(); }), int(Failure::Overflow));
    EXPECT_EQ(Value(QTime(13, 2, 3)).text(), "01:02:03 PM");
}

TEST_F(ValuesTest, TheOrderThatAPersonSeesIsCaseBlindAndTotal)
{
    QStringList names;
    for (const char *name :
         {"reef", "Reef", "REEF", "Apfel", "apfelbaum", "\xc3\x84pfel", "\xc3\xa4pfel", "Zebra", "_x",
          "stra\xc3\x9f"
          "e",
          "STRASSE", "Strasse 2", "\xf0\x9f\x90\xa0", "\xef\xbc\xa1", "", " "})
        names.append(QString::fromUtf8(name));
    for (const QString &name : names)
        add("TANKLST", {{"tankname", name}, {"tankid", name}});
    const auto rows = db->OpenRecordset("SELECT tankname FROM TANKLST ORDER BY tankname COLLATE CASEBLIND").rows();
    ASSERT_EQ(rows->count(), names.size());
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        const int folded = a.toCaseFolded().compare(b.toCaseFolded());
        return folded != 0 ? folded < 0 : a.toUtf8() < b.toUtf8();
    });
    for (int i = 0; i < names.size(); ++i)
        EXPECT_EQ(rows->text(i, 0), names[i]);
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM TANKLST WHERE tankname = ?", {QString("reef")}).RecordCount(), 1);
    for (const QString &a : names)
        for (const QString &b : names) {
            const std::string x = a.toStdString(), y = b.toStdString();
            const int ab = compareCaseBlind(x, y), ba = compareCaseBlind(y, x);
            EXPECT_TRUE(ab == 0 ? x == y : (ab < 0) != (ba < 0)) << x << ' ' << y;
        }
}

} // namespace
