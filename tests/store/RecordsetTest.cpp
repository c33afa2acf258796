// Tests of the recordset: what it adds, changes and deletes, and the keys that no two rows may share.
#include "StoreFixture.h"

constexpr int noCurrentRecord = int(Failure::NoCurrentRecord);

using RecordsetTest = StoreTest;

TEST_F(RecordsetTest, ADuplicateIsRefused)
{
    for (const QString insert :
         {"INSERT INTO MAINTSCHED (SchedTask) VALUES ('T')",
          "INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES ('T', '2003-01-01', '08')",
          "INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime) VALUES ('T', '2003-01-01', '09')",
          "INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname) VALUES ('T', '2003', '09', 'a')"}) {
        EXPECT_EQ(asked(insert), "");
        EXPECT_EQ(asked(QString(insert).replace("'T'", "'t'")), "") << "a name of its own";
        EXPECT_EQ(asked(QString(insert).replace(insert.size() - 3, 1, "5")), "") << "differs in the last column";
        EXPECT_EQ(asked(insert), "error");
    }
}

TEST_F(RecordsetTest, UpdateWritesOnlyTheChangedColumns)
{
    for (const int day : {5, 3, 9, 1})
        addWater(day);
    Recordset rows = db->OpenForUpdate("waterlog", "ORDER BY logdate");
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
    EXPECT_EQ(asked("SELECT count(*) FROM WATERLOG"), "3");
}
