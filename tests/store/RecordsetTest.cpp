// Walking, adding, changing, deleting and finding rows, transactions, and what ends with the database.
#include "StoreFixture.h"

namespace {

constexpr int noCurrentRecord = int(Failure::NoCurrentRecord);

class RecordsetTest : public StoreTest
{
protected:
    RecordsetTest()
    {
        for (const int day : {5, 3, 9, 1})
            addWater(day, day + 0.5);
    }
    Recordset water(const QString &tail = " ORDER BY logdate")
    {
        return db->OpenRecordset("SELECT * FROM waterlog" + tail);
    }
    /// The days of the rows from the current one on.
    QString days(Recordset rows)
    {
        QStringList list;
        for (; !rows.EOF_(); rows.MoveNext())
            list.append(QString::number(rows["logdate"].value().toDate().day()));
        return list.join(u' ');
    }
};

TEST_F(RecordsetTest, WalksItsRowsInTheirOrder)
{
    EXPECT_EQ(days(water()), "1 3 5 9");
    Recordset rows =
        db->OpenRecordset("select * from [waterlog] where logdate > ? ORDER BY [logdate] DESC", {QDate(2003, 1, 1)});
    EXPECT_EQ(rows.RecordCount(), 3);
    rows.MoveLast();
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_() && !rows.BOF());
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_EQ(numberOf([&] { rows.MoveNext(); }), noCurrentRecord);
    rows.MoveFirst();
    EXPECT_EQ(days(rows), "9 5 3");
}

TEST_F(RecordsetTest, WhereThereIsNoRowNothingIsReadOrWritten)
{
    Recordset rows = water(" WHERE ph > 100");
    EXPECT_TRUE(rows.isEmpty());
    const std::pair<const char *, std::function<void()>> uses[] = {{"MoveFirst", [&] { rows.MoveFirst(); }},
                                                                   {"[]", [&] { rows["ph"]; }},
                                                                   {"Edit", [&] { rows.Edit(); }},
                                                                   {"Delete", [&] { rows.Delete(); }},
                                                                   {"Update", [&] { rows.Update(); }}};
    for (const auto &[name, use] : uses)
        EXPECT_EQ(numberOf(use), noCurrentRecord) << name;
    rows = water();
    EXPECT_EQ(numberOf([&] { rows["ph"].setValue(7.0); }), noCurrentRecord) << "no buffer";
}

TEST_F(RecordsetTest, NothingIsUsedThatIsNotOpen)
{
    Recordset unset, lapsed = water();
    const Field field = lapsed["ph"];
    lapsed.AddNew();
    db->Close();
    const std::function<void()> uses[] = {[&] { unset.MoveFirst(); }, [&] { lapsed["ph"]; },
                                          [&] { lapsed.Update(); },   [&] { (void)field.value(); },
                                          [&] { water(); },           [&] { db->Execute("DELETE FROM WATERLOG"); }};
    for (const auto &use : uses)
        EXPECT_EQ(numberOf(use), int(Failure::ObjectNotSet));
}

TEST_F(RecordsetTest, ADuplicateIsRefusedAndTheBufferStays)
{
    const QString t = "T", a = "Tang";
    const QDate day(2003, 1, 1);
    const QTime time(9, 0);
    const struct
    {
        const char *table;
        std::map<QString, Value> columns;
        const char *mended; ///< column that makes it unique
        Value with;
    } cases[] = {
        {"MAINTSCHED", {{"SchedTask", t}}, "SchedTask", QString("t")},
        {"MAINTLOG",
         {{"mainttankname", t}, {"maintlogdate", day}, {"maintlogtime", time}},
         "maintlogtime",
         QTime(9, 0, 1)},
        {"WATERLOG", {{"tankname", t}, {"logdate", day}, {"logtime", QTime(8, 0)}}, "logdate", QDate(2003, 1, 2)},
        {"LIVESTOCK",
         {{"tankname", t}, {"dateadded", day}, {"timeadded", time}, {"animalname", a}},
         "animalname",
         QString("tang")},
    };
    for (const auto &row : cases) {
        add(row.table, row.columns);
        const qsizetype before = count(row.table);
        Recordset rows = adding(row.table, row.columns);
        for (int attempt = 0; attempt < 2; ++attempt)
            EXPECT_EQ(numberOf([&] { rows.Update(); }), int(Failure::DuplicateKey)) << row.table;
        EXPECT_TRUE(rows.isEditing());
        EXPECT_EQ(count(row.table), before) << row.table;
        rows[row.mended].setValue(row.with);
        rows.Update();
        EXPECT_EQ(count(row.table), before + 1) << row.table;
    }
}

TEST_F(RecordsetTest, TheBufferLapsesWhenTheRecordsetMoves)
{
    const std::function<void(Recordset &)> moves[] = {
        [](Recordset &r) { r.MoveNext(); },
        [](Recordset &r) { r.FindFirst("ph > ?", {3.0}); },
        [](Recordset &r) { r.CancelUpdate(); },
        [&](Recordset &r) { r = water(); },
        [](Recordset &r) { EXPECT_TRUE(r.FindFirst("ph > ?", {9.0})), r.Delete(); },
    };
    for (const auto &move : moves) {
        for (const bool add : {true, false}) {
            Recordset rows = water();
            add ? rows.AddNew() : rows.Edit();
            rows["ph"].setValue(99.0);
            move(rows);
            EXPECT_FALSE(rows.isEditing());
            EXPECT_EQ(numberOf([&] { rows.Update(); }), noCurrentRecord);
            if (count("WATERLOG") == 3)
                addWater(9, 9.5);
        }
    }
    EXPECT_TRUE(water(" WHERE ph = 99 OR ph IS NULL").isEmpty());
    EXPECT_EQ(days(water()), "1 3 5 9");
}

TEST_F(RecordsetTest, AChangeWritesItsColumnsAloneAndShowsAtOnce)
{
    Recordset rows = water();
    rows.MoveNext();
    rows.Edit();
    rows["ph"].setValue(QString("7.25"));
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    OtherProgram(path()).run("UPDATE WATERLOG SET nitrate = 20");
    rows.Update();
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    EXPECT_EQ(rows.rows()->number(1, rows.columnIndex("ph")), 3.5);
    EXPECT_EQ(OtherProgram(path()).run("SELECT ph || ' ' || nitrate FROM WATERLOG WHERE logdate = '2003-01-03'"),
              "7.25 20.0");
    EXPECT_EQ(water(" WHERE ph = 7.25").RecordCount(), 1);
}

TEST_F(RecordsetTest, ARowThatAnotherProgramTookIsMissed)
{
    Recordset rows = water();
    rows.Edit();
    rows["ph"].setValue(7.0);
    OtherProgram(path()).run("DELETE FROM WATERLOG WHERE ph = 1.5");
    EXPECT_EQ(numberOf([&] { rows.Update(); }), noCurrentRecord);
    EXPECT_EQ(numberOf([&] { rows.Delete(); }), noCurrentRecord);
    EXPECT_EQ(days(water()), "3 5 9");
}

TEST_F(RecordsetTest, DeletedRowsAreSteppedOver)
{
    Recordset rows = water();
    rows.MoveNext();
    rows.Delete();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(numberOf([&] { rows["ph"]; }), noCurrentRecord);
    rows.MoveNext();
    EXPECT_EQ(days(rows), "5 9");
    for (rows.MoveFirst(); !rows.EOF_(); rows.MoveNext())
        rows.Delete();
    EXPECT_TRUE(rows.isEmpty());
    EXPECT_EQ(count("WATERLOG"), 0);
}

TEST_F(RecordsetTest, FindsTheFirstInItsOwnOrderAmongTheRowsItRead)
{
    Recordset rows = water(" WHERE logdate < '2003-01-09' ORDER BY logdate DESC");
    EXPECT_TRUE(rows.FindFirst("tankname = ? AND logdate < ?", {QString("T"), QDate(2003, 1, 5)}));
    EXPECT_EQ(rows["logdate"].text(), "01/03/2003");
    EXPECT_FALSE(rows.FindFirst("logdate = ?", {QDate(2003, 1, 9)}));
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_FALSE(rows.FindFirst("tankname = ?", {QString("T\" OR 'a' = 'a")}));
    EXPECT_EQ(numberOf([&] { rows.FindFirst("tankname = ", {}); }), int(Failure::SyntaxError));
}

TEST_F(RecordsetTest, OnlyAQueryOfOneWholeTableIsWritten)
{
    const auto refusals = [this](const char *sql) {
        Recordset rows = db->OpenRecordset(sql);
        EXPECT_EQ(rows.RecordCount(), 4) << sql;
        return std::pair(numberOf([&] { rows.AddNew(); }), numberOf([&] { rows.Edit(); }));
    };
    for (const char *sql : {" select * from [waterlog] order by [ph] asc ",
                            "SELECT *\nFROM \"waterlog\" WHERE Comment = 'a union, a group' or 1 = 1"})
        EXPECT_EQ(refusals(sql), std::pair(0, 0)) << sql;
    const int denied = int(Failure::PermissionDenied);
    for (const char *sql : {"SELECT ph FROM WATERLOG", "SELECT *, ph FROM WATERLOG", "SELECT * FROM WATERLOG, CONFIG",
                            "SELECT * FROM WATERLOG w", "SELECT DISTINCT * FROM WATERLOG",
                            "SELECT * FROM WATERLOG WHERE 1 = 1 UNION SELECT * FROM WATERLOG",
                            "SELECT * FROM WATERLOG WHERE 1 = 1 GROUP BY ph"})
        EXPECT_EQ(refusals(sql), std::pair(denied, denied)) << sql;
    for (const char *sql : {"SELECT kh FROM WATERLOG", "SELECT * FROM WATERLOG WHERE ph = ?",
                            "SELECT * FROM WATERLOG; SELECT * FROM CONFIG", "DELETE FROM WATERLOG"})
        EXPECT_EQ(numberOf([&] { db->OpenRecordset(sql); }), int(Failure::SyntaxError)) << sql;
    EXPECT_EQ(count("WATERLOG"), 4);
}

TEST_F(RecordsetTest, ATransactionIsAllOrNothing)
{
    const auto deleteTank = [&](bool faulty) {
        Database::Transaction transaction(*db);
        EXPECT_EQ(db->Execute("DELETE FROM WATERLOG WHERE tankname = ?", {QString("T")}), 4);
        add("TANKLST", {{"tankname", QString("New")}});
        if (faulty)
            db->Execute("DELETE FROM nowhere");
        transaction.commit();
    };
    EXPECT_EQ(numberOf([&] { deleteTank(true); }), int(Failure::SyntaxError));
    EXPECT_EQ(count("WATERLOG"), 4);
    EXPECT_EQ(count("TANKLST"), 0);
    deleteTank(false);
    EXPECT_EQ(count("WATERLOG"), 0);
    {
        Database::Transaction transaction(*db);
        db->Execute("DELETE FROM CONFIG");
        db->Close();
    }
    open();
    EXPECT_EQ(count("CONFIG"), 1);
}

} // namespace
