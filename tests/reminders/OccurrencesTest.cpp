// Tests of the walk over a rule's dates against the cases in data/ (tests/fuzz/fuzz_rules.cpp compares it with a second
// walk), of reading old rows, and of the twenty soonest dates.
#include <algorithm>

#include <QMap>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"
#include "store/StoreFixture.h"
#include "text/Dates.h"

namespace {

const std::pair<const char *, const OccurrenceRun *> runs[] = {
    {"preview", &previewRun}, {"schedule", &scheduleRun}, {"upcoming", &upcomingRun}};

const QMap<QString, WalkFault> faults{{"NoStart", WalkFault::NoStart},     {"NoEnd", WalkFault::NoEnd},
                                      {"NoStep", WalkFault::NoStep},       {"NoDay", WalkFault::NoDay},
                                      {"NoOrdinal", WalkFault::NoOrdinal}, {"NoWeekday", WalkFault::NoWeekday},
                                      {"NoMonth", WalkFault::NoMonth},     {"NoOnceDate", WalkFault::NoOnceDate}};

/// Checks a file of data/: a rule and the dates that it must give, in the order of the walk. A line is a word and its
/// value: "run" with preview, schedule or upcoming; "start", "end", "from", "to"; "type" with its subtype; "interval";
/// "detail" (blanks are kept); "order"; "fault"; or it is an expected date.
void expectGoldenDates(const QString &fileName)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QMap<QString, QString> words;
    QStringList expected, dates;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        if (line[0].isDigit())
            expected << line;
        else
            words[line.section(' ', 0, 0)] = line.section(' ', 1);
    const auto date = [&words](const char *word) { return QDate::fromString(words.value(word), Qt::ISODate); };
    const qint16 interval = words["interval"].toShort(), type = words["type"].section(' ', 0, 0).toShort(),
                 subtype = words["type"].section(' ', 1).toShort();
    const RecurrenceRule rule{{}, date("start"), date("end"), interval, type, subtype, words["detail"], {}};
    const auto run = std::ranges::find_if(runs, [&words](const auto &r) { return words["run"] == r.first; });
    ASSERT_NE(run, std::end(runs));
    const auto fault = Walk(rule, *run->second, {date("from"), date("to")}, ReadDateOrder(words.value("order")),
                            [&dates](const QDate &d) { dates << d.toString(Qt::ISODate); });
    EXPECT_EQ(dates, expected) << dates.join(' ').toStdString();
    EXPECT_EQ(fault.has_value(), words.contains("fault"));
    EXPECT_TRUE(!fault || *fault == faults.value(words["fault"])) << int(*fault);
}

} // namespace

TEST(Walk, GivesTheExpectedDatesOfEachCase)
{
    const ScriptedDoors doors;
    const QFileInfoList files = QDir(QStringLiteral(OMK_REMINDER_CASES)).entryInfoList({"*.txt"});
    ASSERT_FALSE(files.isEmpty());
    for (const QFileInfo &file : files) {
        SCOPED_TRACE(file.fileName().toStdString());
        expectGoldenDates(file.filePath());
    }
}

TEST(Upcoming, KeepsTheSoonestTwentyInOrderOfDateAndTask)
{
    // Seven days with seven reminders each, some of which differ only in case. The dates come rule by rule and not
    // sorted.
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
    EXPECT_EQ(OccurrenceKey(monday), "19980608");
}

using StoredRules = StoreTest;

TEST_F(StoredRules, OldRowsAndInvalidCellsCanBeRead)
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
        EXPECT_TRUE(Walk(rule, upcomingRun, TwoYearsFrom(start), DateOrder::MMDDYY, [](const QDate &) { FAIL(); }));
}
