// Tests of the recordset: moving, adding, changing, deleting and finding rows, and transactions.
#include "StoreFixture.h"

constexpr int noCurrentRecord = int(Failure::NoCurrentRecord);

struct RecordsetTest : StoreTest
{
    RecordsetTest()
    {
        for (const int day : {5, 3, 9, 1})
            addingWater(day, day + 0.5).Update();
    }
    Recordset water(const QString &tail = " ORDER BY logdate") { return db->OpenForUpdate("waterlog", tail); }
    /// The days of the rows from the current one on.
    QString days(Recordset rows)
    {
        QStringList list;
        for (; !rows.EOF_(); rows.MoveNext())
            list.append(QString::number(rows["logdate"].value().toDate().day()));
        return list.join(u' ');
    }
};

TEST_F(RecordsetTest, MovesThroughTheRowsThatAreNotDeleted)
{
    Recordset rows = water();
    EXPECT_EQ(days(rows), "1 3 5 9");
    rows.MoveFirst();
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
    EXPECT_EQ(numberOf([&] { rows.MoveNext(); }), noCurrentRecord);
}

TEST_F(RecordsetTest, ADuplicateIsRefusedAndCanBeCorrected)
{
    for (const char *entry :
         {"MAINTSCHED (SchedTask) VALUES ('T')",
          "MAINTLOG (mainttankname, maintlogdate, maintlogtime) VALUES ('T', '2003-01-01', '09')",
          "LIVESTOCK (tankname, dateadded, timeadded, animalname) VALUES ('T', '2003', '09', 'a')"}) {
        const QString insert = QString("INSERT INTO ") + entry;
        EXPECT_EQ(asked(insert), "");
        EXPECT_EQ(asked(QString(insert).replace("'T'", "'t'")), "") << "a name of its own";
        EXPECT_EQ(asked(QString(insert).replace(insert.size() - 3, 1, "5")), "") << "differs in the last column";
        EXPECT_EQ(asked(insert), "error");
    }
    Recordset rows = addingWater(9, 7);
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_EQ(numberOf([&] { rows.Update(); }), int(Failure::DuplicateKey));
    EXPECT_EQ(count("WATERLOG"), 4);
    rows["logtime"].setValue(QTime(9, 0, 1));
    rows.Update();
    EXPECT_EQ(count("WATERLOG"), 5);
}

TEST_F(RecordsetTest, MovingDiscardsTheBuffer)
{
    const std::function<void(Recordset &)> moves[] = {[](Recordset &r) { r.MoveNext(); },
                                                      [](Recordset &r) { r.FindFirst("ph > ?", {3.0}); },
                                                      [&](Recordset &r) { r = water(); }};
    for (const auto &move : moves)
        for (const bool add : {true, false}) {
            Recordset rows = water();
            add ? rows.AddNew() : rows.Edit();
            rows["ph"].setValue(99.0);
            move(rows);
            EXPECT_EQ(numberOf([&] { rows.Update(); }), noCurrentRecord);
        }
    EXPECT_EQ(asked("SELECT group_concat(ph, ' ') FROM WATERLOG"), "5.5 3.5 9.5 1.5");
}

TEST_F(RecordsetTest, UpdateWritesOnlyTheChangedColumns)
{
    Recordset rows = water();
    rows.MoveNext();
    rows.Edit();
    rows["ph"].setValue(QString("7.25"));
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    asked("UPDATE WATERLOG SET nitrate = 20; DELETE FROM WATERLOG WHERE logdate = '2003-01-01'");
    rows.Update();
    EXPECT_EQ(rows["ph"].value(), Value(7.25));
    EXPECT_EQ(rows.rows()->number(1, rows.columnIndex("ph")), 3.5);
    EXPECT_EQ(asked("SELECT ph || ' ' || nitrate FROM WATERLOG WHERE logdate = '2003-01-03'"), "7.25 20.0");
    rows.MoveFirst(); // the row that another program deleted
    rows.Edit();
    rows["ph"].setValue(7.0);
    EXPECT_EQ(numberOf([&] { rows.Update(); }), noCurrentRecord);
    EXPECT_EQ(numberOf([&] { rows.Delete(); }), noCurrentRecord);
    EXPECT_EQ(days(water()), "3 5 9");
}

TEST_F(RecordsetTest, FindFirstSearchesTheRowsThatWereRead)
{
    Recordset rows = water(" WHERE logdate < '2003-01-09' ORDER BY logdate DESC");
    EXPECT_TRUE(rows.FindFirst("tankname = ? AND logdate < ?", {QString("T"), QDate(2003, 1, 5)}));
    EXPECT_EQ(rows["logdate"].text(), "01/03/2003");
    EXPECT_FALSE(rows.FindFirst("logdate = ?", {QDate(2003, 1, 9)}));
    EXPECT_EQ(numberOf([&] { rows.FindFirst("tankname = ", {}); }), int(Failure::SyntaxError));
}

TEST_F(RecordsetTest, OnlyRowsThatWereOpenedForUpdateCanBeWritten)
{
    Recordset read = db->OpenRecordset("SELECT * FROM WATERLOG");
    for (const auto write : {&Recordset::AddNew, &Recordset::Edit, &Recordset::Update, &Recordset::Delete})
        EXPECT_EQ(numberOf([&] { (read.*write)(); }), int(Failure::PermissionDenied));
    EXPECT_EQ(numberOf([&] { db->OpenForUpdate("no such table"); }), int(Failure::NoSuchColumn));
    for (const char *wrong : {"WHERE ph = ?", "; SELECT * FROM CONFIG"})
        EXPECT_EQ(numberOf([&] { db->OpenForUpdate("WATERLOG", wrong); }), int(Failure::SyntaxError)) << wrong;
    for (const char *wrong : {"SELECT kh FROM WATERLOG", "DELETE FROM WATERLOG"})
        EXPECT_EQ(numberOf([&] { db->OpenRecordset(wrong); }), int(Failure::SyntaxError)) << wrong;
    EXPECT_EQ(count("WATERLOG"), 4);
}

TEST_F(RecordsetTest, ATransactionIsAllOrNothing)
{
    const auto deleteTank = [&](const char *last) {
        Database::Transaction transaction(*db);
        EXPECT_EQ(db->Execute("DELETE FROM WATERLOG WHERE tankname = ?", {QString("T")}), 4);
        adding("TANKLST", {{"tankname", QString("New")}}).Update();
        db->Execute(last);
        transaction.commit();
    };
    EXPECT_EQ(numberOf([&] { deleteTank("DELETE FROM nowhere"); }), int(Failure::SyntaxError));
    EXPECT_EQ(count("WATERLOG") + count("TANKLST"), 4);
    deleteTank("DELETE FROM LIVESTOCK");
    EXPECT_EQ(count("WATERLOG"), 0);
    {
        Database::Transaction transaction(*db);
        db->Execute("DELETE FROM CONFIG");
        db->Close();
    }
    open();
    EXPECT_EQ(count("CONFIG"), 1);
}
