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
        db->OpenRecordset("select * from [waterlog] where tankname = ? and logdate > ? ORDER BY [logdate] DESC",
                          {QString("T"), QDate(2003, 1, 1)});
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    rows.MoveLast();
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(rows["LOGDATE"].text(), "01/03/2003");
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
    const std::pair<const char *, std::function<void()>> uses[] = {
        {"MoveFirst", [&] { rows.MoveFirst(); }}, {"MoveLast", [&] { rows.MoveLast(); }},
        {"MoveNext", [&] { rows.MoveNext(); }},   {"[]", [&] { rows["ph"]; }},
        {"Edit", [&] { rows.Edit(); }},           {"Delete", [&] { rows.Delete(); }},
        {"Update", [&] { rows.Update(); }},
    };
    for (const auto &[name, use] : uses)
        EXPECT_EQ(numberOf(use), noCurrentRecord) << name;
    EXPECT_EQ(numberOf([&] { rows["kh"]; }), int(Failure::NoSuchColumn));
    rows = water();
    EXPECT_EQ(numberOf([&] { rows["ph"].setValue(7.0); }), noCurrentRecord);
}

TEST_F(RecordsetTest, NothingIsUsedThatIsNotOpen)
{
    Recordset unset, closed = water(), lapsed = water();
    const Field field = lapsed["ph"];
    const auto kept = lapsed.rows();
    closed.Close();
    lapsed.AddNew();
    db->Close();
    for (Recordset *rows : {&unset, &closed, &lapsed}) {
        EXPECT_FALSE(rows->isSet());
        const std::function<void()> uses[] = {
            [&] { (void)rows->BOF(); }, [&] { (void)rows->RecordCount(); },
            [&] { rows->MoveFirst(); }, [&] { (*rows)["ph"]; },
            [&] { rows->AddNew(); },    [&] { rows->Update(); },
            [&] { rows->Delete(); },    [&] { rows->Close(); },
        };
        for (const auto &use : uses)
            EXPECT_EQ(numberOf(use), int(Failure::ObjectNotSet));
    }
    EXPECT_EQ(numberOf([&] { (void)field.value(); }), int(Failure::ObjectNotSet));
    EXPECT_EQ(numberOf([&] { water(); }), int(Failure::ObjectNotSet));
    EXPECT_EQ(numberOf([&] { db->Execute("DELETE FROM WATERLOG"); }), int(Failure::ObjectNotSet));
    EXPECT_EQ(kept->count(), 4);
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
        {"TANKLST", {{"tankname", t}, {"tankid", QString("1")}}, "tankname", QString("t")},
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
        if (rows.columnIndex(row.mended) >= 0 && QString(row.table) == "TANKLST")
            rows["tankid"].setValue(QString("2"));
        for (int attempt = 0; attempt < 2; ++attempt)
            EXPECT_EQ(numberOf([&] { rows.Update(); }), int(Failure::DuplicateKey)) << row.table;
        EXPECT_TRUE(rows.isEditing());
        EXPECT_EQ(count(row.table), before) << row.table;
        rows[row.mended].setValue(row.with);
        rows.Update();
        EXPECT_EQ(numberOf([&] { rows.Update(); }), noCurrentRecord) << row.table;
        EXPECT_EQ(count(row.table), before + 1) << row.table;
    }
}

TEST_F(RecordsetTest, TheBufferLapsesWhenTheRecordsetMoves)
{
    const std::function<void(Recordset &)> moves[] = {
        [](Recordset &r) { r.MoveFirst(); },
        [](Recordset &r) { r.MoveNext(); },
        [](Recordset &r) { r.MoveLast(); },
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
    const Recordset copy = rows;
    rows.Edit();
    rows["ph"].setValue(QString("7.25"));
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    OtherProgram(path()).run("UPDATE WATERLOG SET nitrate = 20");
    rows.Update();
    EXPECT_FALSE(rows.isEditing());
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    EXPECT_EQ(copy.AbsolutePosition(), 1);
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
    EXPECT_EQ(numberOf([&] { rows.Delete(); }), noCurrentRecord);
    rows.MoveNext();
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    EXPECT_EQ(days(rows), "5 9");
    rows.MoveFirst();
    EXPECT_EQ(days(rows), "1 5 9");
    for (rows.MoveFirst(); !rows.EOF_(); rows.MoveNext())
        rows.Delete();
    EXPECT_TRUE(rows.isEmpty());
    EXPECT_EQ(numberOf([&] { rows.MoveLast(); }), noCurrentRecord);
    EXPECT_EQ(count("WATERLOG"), 0);
}

TEST_F(RecordsetTest, FindsTheFirstInItsOwnOrderAmongTheRowsItRead)
{
    Recordset rows = water(" WHERE logdate < '2003-01-09' ORDER BY logdate DESC");
    EXPECT_TRUE(rows.FindFirst("tankname = ? AND logdate < ?", {QString("T"), QDate(2003, 1, 5)}));
    EXPECT_EQ(rows["logdate"].text(), "01/03/2003");
    EXPECT_TRUE(rows.FindFirst("ph = ? or tankname = ?", {77.0, QString("T")}));
    EXPECT_EQ(rows["logdate"].text(), "01/05/2003");
    EXPECT_FALSE(rows.FindFirst("logdate = ?", {QDate(2003, 1, 9)}));
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_FALSE(rows.FindFirst("tankname = ?", {QString("T\" OR 'a' = 'a")}));
    EXPECT_EQ(numberOf([&] { rows.FindFirst("tankname = ", {}); }), int(Failure::SyntaxError));
    EXPECT_EQ(numberOf([&] { rows.FindFirst("ph = ?", {}); }), int(Failure::SyntaxError));
}

TEST_F(RecordsetTest, OnlyAQueryOfOneWholeTableIsWritten)
{
    const struct
    {
        const char *sql;
        bool writable;
    } cases[] = {
        {"SELECT * FROM WATERLOG", true},
        {" select * from [waterlog] order by [ph] asc ", true},
        {"SELECT *\nFROM \"waterlog\" WHERE Comment = 'a union, a group' or 1 = 1", true},
        {"SELECT * FROM WATERLOG ORDER BY 2", true},
        {"SELECT ph FROM WATERLOG", false},
        {"SELECT *, ph FROM WATERLOG", false},
        {"SELECT w.* FROM WATERLOG w, CONFIG", false},
        {"SELECT * FROM WATERLOG, CONFIG", false},
        {"SELECT * FROM WATERLOG w", false},
        {"SELECT DISTINCT * FROM WATERLOG", false},
        {"SELECT * FROM WATERLOG WHERE 1 = 1 UNION SELECT * FROM WATERLOG", false},
        {"SELECT * FROM WATERLOG WHERE 1 = 1 GROUP BY ph", false},
    };
    for (const auto &row : cases) {
        Recordset rows = db->OpenRecordset(row.sql);
        EXPECT_EQ(rows.RecordCount(), 4) << row.sql;
        const int refusal = row.writable ? 0 : int(Failure::PermissionDenied);
        EXPECT_EQ(numberOf([&] { rows.AddNew(); }), refusal) << row.sql;
        EXPECT_EQ(numberOf([&] { rows.Edit(); }), refusal) << row.sql;
        if (row.writable) {
            EXPECT_EQ(rows.rows()->columns(), 17) << row.sql;
        }
    }
}

TEST_F(RecordsetTest, WrongStatementsAreRefused)
{
    const std::pair<const char *, Parameters> cases[] = {
        {"SELEC * FROM WATERLOG", {}},
        {"SELECT * FROM nowhere", {}},
        {"SELECT kh FROM WATERLOG", {}},
        {"SELECT * FROM WATERLOG WHERE ph = ?", {}},
        {"SELECT * FROM WATERLOG", {1.0}},
        {"SELECT * FROM WATERLOG; SELECT * FROM CONFIG", {}},
        {"", {}},
        {"DELETE FROM WATERLOG", {}},
    };
    for (const auto &[sql, parameters] : cases)
        EXPECT_EQ(numberOf([&] { db->OpenRecordset(sql, parameters); }), int(Failure::SyntaxError)) << sql;
    EXPECT_EQ(numberOf([&] { db->OpenForAppend("nowhere"); }), int(Failure::NoSuchColumn));
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

TEST_F(RecordsetTest, AnEntryThatAnotherProgramBlocksCanBeWrittenLater)
{
    Database::setBusyTimeout(10);
    open();
    OtherProgram other(path());
    other.run("BEGIN IMMEDIATE");
    Recordset rows = adding("WATERLOG", {{"tankname", QString("T")}, {"ph", 8.0}});
    EXPECT_EQ(numberOf([&] { rows.Update(); }), int(Failure::PermissionDenied));
    EXPECT_EQ(numberOf([&] { const Database::Transaction transaction(*db); }), int(Failure::PermissionDenied));
    other.run("COMMIT");
    rows.Update();
    EXPECT_EQ(count("WATERLOG"), 5);
    Database::setBusyTimeout(5000);
}

TEST_F(RecordsetTest, ColumnsAreAddedAsAnUpgradeDoes)
{
    const auto hasVersion = [&] {
        for (const FieldDef &field : db->Fields("config"))
            if (field.Name == u"db_version")
                return field.Type == FieldType::Text && field.Size == 4;
        return false;
    };
    EXPECT_TRUE(hasVersion());
    db->Execute("ALTER TABLE CONFIG DROP COLUMN db_version");
    EXPECT_FALSE(hasVersion());
    {
        const Database::Transaction transaction(*db);
        db->Append("Config", {"db_version", FieldType::Text, 4});
        EXPECT_TRUE(hasVersion());
    }
    EXPECT_FALSE(hasVersion());
    const FieldType types[] = {FieldType::Boolean, FieldType::Integer, FieldType::Double, FieldType::Date,
                               FieldType::Text,    FieldType::Memo,    FieldType::Time};
    for (const FieldType type : types) {
        db->Append("config", {"new", type});
        EXPECT_EQ(int(db->Fields("CONFIG").back().Type), int(type));
        Recordset rows = db->OpenRecordset("SELECT * FROM CONFIG");
        EXPECT_TRUE(rows["new"].value().isNull());
        db->Execute("ALTER TABLE CONFIG DROP COLUMN new");
    }
    EXPECT_EQ(numberOf([&] { db->Append("CONFIG", {"default_salt", FieldType::Text}); }), int(Failure::SyntaxError));
    EXPECT_EQ(numberOf([&] { (void)db->Fields("nowhere"); }), int(Failure::NoSuchColumn));
    EXPECT_EQ(db->TableDefs().size(), 7);
}

} // namespace
