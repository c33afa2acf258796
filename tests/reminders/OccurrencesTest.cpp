// Tests of the walk over a rule's dates against the cases in data/ (tests/fuzz/fuzz_rules.cpp compares it with a second
// walk), of reading old rows, and of the twenty soonest dates.
#include <map>

#include <QMap>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"
#include "store/StoreFixture.h"
#include "text/Dates.h"

namespace {

const std::map<QString, const OccurrenceRun *> runs{
    {"preview", &previewRun}, {"schedule", &scheduleRun}, {"upcoming", &upcomingRun}};

const std::map<QString, WalkFault> faults{{"NoStart", WalkFault::NoStart},     {"NoEnd", WalkFault::NoEnd},
                                          {"NoStep", WalkFault::NoStep},       {"NoDay", WalkFault::NoDay},
                                          {"NoOrdinal", WalkFault::NoOrdinal}, {"NoWeekday", WalkFault::NoWeekday},
                                          {"NoMonth", WalkFault::NoMonth},     {"NoOnceDate", WalkFault::NoOnceDate}};

} // namespace

/// Each file of data/ has a rule and the dates that it must give, in the order of the walk. A line is a word and its
/// value: "run" with preview, schedule or upcoming; "start", "end", "from", "to"; "type" with its subtype; "interval";
/// "detail" (blanks are kept); "order"; "fault"; or it is an expected date.
TEST(Walk, GivesTheExpectedDatesOfEachCase)
{
    const ScriptedDoors doors;
    const auto files = contentOf(OMK_REMINDER_CASES);
    ASSERT_FALSE(files.empty());
    for (const auto &[fileName, content] : files) {
        SCOPED_TRACE(fileName.toStdString());
        QMap<QString, QString> words;
        QStringList expected, dates;
        for (const QString &line : QString::fromUtf8(content).split('\n', Qt::SkipEmptyParts))
            if (line[0].isDigit())
                expected << line;
            else
                words[line.section(' ', 0, 0)] = line.section(' ', 1);
        const auto date = [&words](const char *word) { return QDate::fromString(words.value(word), Qt::ISODate); };
        const qint16 interval = words["interval"].toShort(), type = words["type"].left(1).toShort(),
                     subtype = words["type"].right(1).toShort();
        const RecurrenceRule rule{{}, date("start"), date("end"), interval, type, subtype, words["detail"], {}};
        const auto fault = Walk(rule, *runs.at(words["run"]), {date("from"), date("to")}, ReadDateOrder(words["order"]),
                                [&dates](const QDate &d) { dates << d.toString(Qt::ISODate); });
        EXPECT_EQ(dates, expected) << dates.join(' ').toStdString();
        EXPECT_EQ(fault, words.contains("fault") ? std::optional(faults.at(words["fault"])) : std::nullopt);
    }
}

TEST(Upcoming, KeepsTheSoonestTwentyInOrderOfDateAndTask)
{
    UpcomingReminders upcoming;
    QStringList expected;
    for (const char *task : {"feed", "clean", "Dose", "\u00c4rger"}) // rule by rule, the latest date first
        for (int day = 30; day > 0; --day)
            upcoming.add(QDate(1998, 6, day), QString::fromUtf8(task));
    for (int day = 1; day <= 5; ++day)
        for (const char *task : {"clean", "Dose", "feed", "\u00c4rger"})
            expected << QDate(1998, 6, day).toString("ddd dd.MM.yy ") + QString::fromUtf8(task);
    EXPECT_EQ(upcoming.texts("DD.MM.YY"), expected);
}

TEST_F(StoreTest, OldRowsAndInvalidCellsCanBeRead)
{
    db->Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype) VALUES "
                "('upgraded', '1997-03-01', '1999-03-01', 3, 0), ('empty', NULL, NULL, NULL, NULL), "
                "('strange', 'soon', '1999-03-01', 65539, 'often')");
    const QDate start(1997, 3, 1), end(1999, 3, 1);
    const auto rules = ReadRules(*db->OpenRecordset("SELECT * FROM maintsched").rows());
    EXPECT_EQ(rules, (std::vector<RecurrenceRule>{{"upgraded", start, end, 3, 0, 0, "", ""},
                                                  {"empty", {}, {}, 0, 0, 0, "", ""},
                                                  {"strange", {}, end, 0, 0, 0, "", ""}}));
}
