// The rule and its row: what is written comes back, rows of older files read as every so many days.
#include <gtest/gtest.h>

#include "reminders/Occurrences.h"
#include "reminders/RecurrenceRule.h"
#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/ScriptedDoors.h"

namespace {

class StoredRule : public ::testing::Test
{
protected:
    StoredRule()
    {
        CreateDatabase(folder.filePath("OM.MDB"));
        db = Database::OpenDatabase(folder.filePath("OM.MDB"));
    }
    Recordset all() { return db->OpenRecordset("SELECT * FROM maintsched "); }

    QTemporaryDir folder;
    ScriptedDoors doors;
    std::unique_ptr<Database> db;
};

TEST_F(StoredRule, ComesBackAsItWasWrittenAndLeavesTheColumnsOfTheOlderRule)
{
    const RecurrenceRule rule{"Say \"clean\" & 'rinse' the filter; -- ?",
                              QDate(2026, 3, 14),
                              QDate(2047, 12, 31),
                              2,
                              1,
                              1,
                              "0101000",
                              "Every 2 week(s) on Mon, Wed."};
    db->Execute(
        "INSERT INTO MAINTSCHED (SchedTask, schedyears, schedcomment, schedtankname) VALUES ('Old', 3, 'old', 'r1')");
    Recordset row = all();
    row.Edit();
    WriteRule(row, rule);
    row.Update();
    Recordset again = all();
    EXPECT_EQ(ReadRule(again), rule);
    EXPECT_EQ(again["schedyears"].text() + again["schedcomment"].text() + again["schedtankname"].text(), "3oldr1");
}

TEST_F(StoredRule, OldRowsAndStrangeCellsReadWithoutAFailure)
{
    db->Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype) "
                "VALUES ('upgraded', '1997-03-01', '1999-03-01', 3, 0)");
    db->Execute("INSERT INTO MAINTSCHED (SchedTask) VALUES ('empty')");
    db->Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype) "
                "VALUES ('strange', 'soon', '1999-03-01', 65539, 'often')");
    const auto rules = ReadRules(*all().rows());
    ASSERT_EQ(rules.size(), 3u);
    EXPECT_EQ(rules[0], (RecurrenceRule{"upgraded", QDate(1997, 3, 1), QDate(1999, 3, 1), 3, 0, 0, "", ""}));
    EXPECT_EQ(rules[1], (RecurrenceRule{"empty", {}, {}, 0, 0, 0, "", ""}));
    EXPECT_EQ(rules[2], (RecurrenceRule{"strange", {}, QDate(1999, 3, 1), 0, 0, 0, "", ""}));
    for (const RecurrenceRule &rule : {rules[1], rules[2]})
        EXPECT_TRUE(Walk(rule, upcomingRun, TwoYearsFrom(QDate(1997, 3, 1)), "MMDDYY", [](const QDate &) { FAIL(); }));
}

} // namespace
