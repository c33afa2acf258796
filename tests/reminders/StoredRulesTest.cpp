// The rule and its row: what is written comes back, rows of older files read as every so many days. And the twenty
// soonest of many dates.
#include <algorithm>

#include <gtest/gtest.h>

#include "reminders/Occurrences.h"
#include "reminders/RecurrenceRule.h"
#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/ScriptedDoors.h"

namespace {

class StoredRules : public ::testing::Test
{
protected:
    StoredRules()
    {
        CreateDatabase(folder.filePath("OM.MDB"));
        db = Database::OpenDatabase(folder.filePath("OM.MDB"));
    }

    QTemporaryDir folder;
    ScriptedDoors doors;
    std::unique_ptr<Database> db;
};

TEST_F(StoredRules, ComeBackAsTheyWereWrittenAndLeaveTheColumnsOfTheOlderRule)
{
    const QString task = "Say \"clean\" & 'rinse' the filter; -- ?", sentence = "Every 2 week(s) on Mon, Wed.";
    const RecurrenceRule rule{task, QDate(2026, 3, 14), QDate(2047, 12, 31), 2, 1, 1, "0101000", sentence};
    db->Execute("INSERT INTO MAINTSCHED (SchedTask, schedyears, schedcomment, schedtankname) "
                "VALUES ('Old', 3, 'old', 'r1')");
    Recordset row = db->OpenRecordset("SELECT * FROM maintsched");
    row.Edit();
    WriteRule(row, rule);
    row.Update();
    Recordset again = db->OpenRecordset("SELECT * FROM maintsched");
    EXPECT_EQ(ReadRule(again), rule);
    EXPECT_EQ(again["schedyears"].text() + again["schedcomment"].text() + again["schedtankname"].text(), "3oldr1");
}

TEST_F(StoredRules, OldRowsAndStrangeCellsReadWithoutAFailure)
{
    db->Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype) VALUES "
                "('upgraded', '1997-03-01', '1999-03-01', 3, 0), ('empty', NULL, NULL, NULL, NULL), "
                "('strange', 'soon', '1999-03-01', 65539, 'often')");
    const QDate start(1997, 3, 1), end(1999, 3, 1);
    const auto rules = ReadRules(*db->OpenRecordset("SELECT * FROM maintsched").rows());
    EXPECT_EQ(rules, (std::vector<RecurrenceRule>{{"upgraded", start, end, 3, 0, 0, "", ""},
                                                  {"empty", {}, {}, 0, 0, 0, "", ""},
                                                  {"strange", {}, end, 0, 0, 0, "", ""}}));
    for (const RecurrenceRule &rule : {rules.at(1), rules.at(2)})
        EXPECT_TRUE(Walk(rule, upcomingRun, TwoYearsFrom(start), "MMDDYY", [](const QDate &) { FAIL(); }));
}

TEST(Upcoming, KeepsTheSoonestTwentyInOrderOfDateAndTask)
{
    // Dates come rule by rule, each in its own order; seven days with seven reminders on each, some alike but for case.
    const QDate monday(1998, 6, 8);
    UpcomingReminders upcoming;
    std::vector<std::pair<QDate, QString>> all;
    for (const char *task : {"feed", "Clean", "FEED", "dose", "Feed", "clean", "Ärger"})
        for (int day = 6; day >= 0; --day)
            all.emplace_back(monday.addDays(day), QString::fromUtf8(task));
    for (const auto &[date, task] : all)
        upcoming.add(date, task);
    std::stable_sort(all.begin(), all.end(), [](const auto &a, const auto &b) {
        return a.first != b.first ? a.first < b.first : a.second.compare(b.second, Qt::CaseInsensitive) < 0;
    });
    QStringList expected;
    for (std::size_t i = 0; i < 20; ++i)
        expected << all[i].first.toString("ddd dd.MM.yy ") + all[i].second;
    EXPECT_EQ(upcoming.texts("DD.MM.YY"), expected) << upcoming.texts("DD.MM.YY").join('|').toStdString();
    EXPECT_EQ(OccurrenceText(scheduleRun, monday, "YY-MM-DD"), "Monday 98-06-08");
    EXPECT_EQ(OccurrenceKey(monday), "19980608");
}

} // namespace
