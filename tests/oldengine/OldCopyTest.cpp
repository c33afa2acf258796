// The plain logic of reading an old file, without the library: values, the head of a file, tables and columns, entries
// at the same second, what is refused and what is reported.
#include <cmath>
#include <limits>

#include "FakeSource.h"
#include "oldengine/OldFile.h"
#include "store/FaultVfs.h"

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
        {OldType::Single, bytesOf(3.4028235e38F), ColumnKind::Double, "3.4028235E+38"},
        {OldType::Single, bytesOf(float(never)), ColumnKind::Double, "none"},
        {OldType::Single, bytesOf(7.8F).first(3), ColumnKind::Double, "none"},
        {OldType::Double, bytesOf(14.0), ColumnKind::Integer, "14"},
        {OldType::Byte, "\xff", ColumnKind::Double, "255"},
        {OldType::Integer, bytesOf(qint16(-32768)), ColumnKind::Integer, "-32768"},
        {OldType::Long, bytesOf(qint32(70000)), ColumnKind::Double, "70000"},
        {OldType::Currency, bytesOf(qint64(-1)), ColumnKind::Double, "-0.0001"},
        {OldType::Decimal, "\x80" + QByteArray(12, '\0') + bytesOf(1234), ColumnKind::Double, "-12.34"},
        {OldType::Integer, bytesOf(qint16(-1)), ColumnKind::Boolean, "1"},
        {OldType::Byte, "\3", ColumnKind::Text, "3"},
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
    EXPECT_FALSE(CanBeRead(OldType::Long, ColumnKind::Date));
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

struct OldCopyTest : testing::Test
{
    QString path() const { return folder.filePath("draft"); }
    OldOutcome copy()
    {
        writeFile(path(), {});
        return CopyOldDatabase(source, path(), [](const OldProgress &) {});
    }
    /// The failure's number and the part of its description after the standard text.
    QString refusal()
    {
        const auto failure = failureOf([this] { copy(); });
        return failure ? QString::number(int(failure->number())) + ' ' + failure->description().section('\n', 1)
                       : QString();
    }
    QString asked(const QString &sql) { return OtherProgram(path()).run(sql); }
    static FakeSource::FakeRow test(double moment, const QString &tank = "R")
    {
        return {{"tankname", utf16(tank)},
                {"logdate", bytesOf(std::trunc(moment))},
                {"logtime", bytesOf(moment - std::trunc(moment))}};
    }

    QTemporaryDir folder;
    FakeSource source;
};

TEST_F(OldCopyTest, NamesAreMatchedInAnyCaseAndWhatIsUnknownIsLeftOutAndTold)
{
    source.row("WATERLOG", {{"TANKNAME", utf16("R")}, {"ph", bytesOf(8.1)}});
    source.table("WATERLOG").columns[0].name = "TANKNAME";
    source.table("WATERLOG").name = "waterlog";
    source.table("TANKLST").columns.push_back({"Photo", OldType(11), 0});
    source.all.push_back({"Switchboard", {{"Id", OldType::Long, 0}}, 0});
    EXPECT_EQ(copy().changed.join(' '),
              "The column \"Photo\" of the table TANKLST is not part of Ostrelmark and was left out. "
              "The table \"Switchboard\" (rows: 0) is not part of Ostrelmark and was left out.");
    EXPECT_EQ(asked("SELECT tankname || ph FROM WATERLOG"), "R8.1");
}

TEST_F(OldCopyTest, WhatTheVersionNeedsAndTheFileHasNotIsRefusedByName)
{
    const std::pair<std::function<void(FakeSource &)>, QString> rows[] = {
        {[](FakeSource &s) { s.table("MAINTLOG").name = "Other"; },
         "3265 The file has no table MAINTLOG. It is damaged, or it belongs to another program."},
        {[](FakeSource &s) { s.table("MAINTLOG").columns.clear(); },
         "3343 The description of the table MAINTLOG cannot be read."},
        {[](FakeSource &s) { s.table("WATERLOG").columns.pop_back(); },
         "3265 The table WATERLOG has no column Comment."},
        {[](FakeSource &s) { s.table("MAINTSCHED").columns.pop_back(); },
         "3265 The table MAINTSCHED has no column SchedEndDate."},
        {[](FakeSource &s) { s.table("TANKLST").columns[2].type = OldType::Text; },
         "13 The column tanksize of the table TANKLST does not have the type of values that this program stores in "
         "it."},
        {[](FakeSource &s) { s.rows.clear(); }, "3343 The table CONFIG has no row."},
        {[](FakeSource &s) {
             s.rows["CONFIG"] = {{{"db_version", utf16("3.0 ")}}};
         },
         "3343 The file is of version \"3.0 \", which this program does not know."},
    };
    for (const auto &[spoil, says] : rows) {
        source = FakeSource();
        spoil(source);
        EXPECT_EQ(refusal(), says);
    }
    source = FakeSource("1.1 "); // with a column that was added by an upgrade that was interrupted
    source.table("MAINTSCHED").columns.push_back({"SchedRtype", OldType::Integer, 0});
    EXPECT_EQ(refusal(), "");
}

TEST_F(OldCopyTest, EntriesOfOneSecondAllComeOverTheLaterOnesAtTheNextFreeSecond)
{
    const double nine = 35801 + 9 / 24.0, second = 1 / 86400.0;
    for (const double moment : {nine, nine, nine + second, nine, 35801 + 86399 * second, 35801 + 86399 * second})
        source.row("WATERLOG", test(moment));
    for (int i = 0; i < 2; ++i)
        source.row("WATERLOG", test(nine, "S")); // another tank
    for (const char *animal : {"Guppy", "Betta"})
        source.row("LIVESTOCK", {{"tankname", utf16("R")},
                                 {"dateadded", bytesOf(9.0)},
                                 {"timeadded", bytesOf(0.5)},
                                 {"animalname", utf16(animal)}});
    const OldOutcome outcome = copy();
    EXPECT_EQ(asked("SELECT group_concat(m, ' ') FROM (SELECT tankname || logdate || 'T' || logtime AS m FROM WATERLOG "
                    "ORDER BY m)"),
              "R1998-01-06T09:00:00 R1998-01-06T09:00:01 R1998-01-06T09:00:02 R1998-01-06T09:00:03 "
              "R1998-01-06T23:59:59 R1998-01-07T00:00:00 S1998-01-06T09:00:00 S1998-01-06T09:00:01");
    EXPECT_EQ(asked("SELECT count(*) FROM LIVESTOCK WHERE timeadded = '12:00:00'"), "2");
    EXPECT_EQ(outcome.changed.join(' '),
              "4 water tests had the date and time of others; each was moved to the next free second.");
}

TEST_F(OldCopyTest, NamesThatStandTwiceGetANumber)
{
    for (const char *id : {"1", "2", "2"})
        source.row("TANKLST", {{"tankname", utf16("Reef")}, {"tankid", utf16(id)}});
    const OldOutcome outcome = copy();
    EXPECT_EQ(asked("SELECT group_concat(tankname || '/' || tankid, ' ') FROM TANKLST"),
              "Reef/1 Reef (2)/2 Reef (3)/2 (2)");
    EXPECT_EQ(outcome.changed[0], "Two tanks had the same tankname, \"Reef\"; the later one has \"Reef (2)\" now.");
    EXPECT_EQ(outcome.changed.size(), 3);
}

TEST_F(OldCopyTest, WhatCannotBeReadIsCountedAndTheRestComesOver)
{
    for (int i = 0; i < 4; ++i)
        source.row("WATERLOG", test(100 + i));
    source.row("WATERLOG", {{"tankname", utf16("R")}, {"Comment", "?"}, {"ph", bytesOf(8.0)}});
    source.table("WATERLOG").rows = 8;
    source.lost["ANIMALLIST"] = 1;
    const OldOutcome outcome = copy();
    EXPECT_EQ(outcome.unread.join(' '),
              "WATERLOG: 3 of 8 rows WATERLOG: the column Comment in 1 of 5 rows ANIMALLIST: 1 of 1 rows");
    EXPECT_EQ(asked("SELECT count(*) FROM WATERLOG"), "5");
    EXPECT_EQ(asked("SELECT ph FROM WATERLOG WHERE Comment IS NULL AND ph = 8"), "8.0");
}

TEST_F(OldCopyTest, AFullDiskIsReported)
{
    for (int i = 0; i < 2000; ++i)
        source.row("WATERLOG", test(100 + i));
    FaultVfs vfs;
    for (FaultPlan plan{.code = SQLITE_FULL, .forEver = true}; plan.after < 45; plan.after += 9) {
        vfs.plan(plan);
        EXPECT_EQ(refusal().section(' ', 0, 0), QString::number(int(Failure::DiskFull))) << "after " << plan.after;
        EXPECT_TRUE(vfs.hasStruck());
    }
}
