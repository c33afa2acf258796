// The walk over a rule's dates: against the cases of data/, and whole expansions of thousands of random rules against a
// second walk, slow and literal, which makes dates of their text and looks for weekdays a day at a time. Rows of
// older files, and the twenty soonest of many dates.
#include <algorithm>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QMap>

#include "reminders/Occurrences.h"
#include "reminders/RecurrenceRule.h"
#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/ScriptedDoors.h"
#include "text/Dates.h"

namespace {

const std::pair<const char *, const OccurrenceRun *> runs[] = {
    {"preview", &previewRun}, {"schedule", &scheduleRun}, {"upcoming", &upcomingRun}};

const QMap<QString, WalkFault> faults{{"NoStart", WalkFault::NoStart},     {"NoEnd", WalkFault::NoEnd},
                                      {"NoStep", WalkFault::NoStep},       {"NoDay", WalkFault::NoDay},
                                      {"NoOrdinal", WalkFault::NoOrdinal}, {"NoWeekday", WalkFault::NoWeekday},
                                      {"NoMonth", WalkFault::NoMonth},     {"NoOnceDate", WalkFault::NoOnceDate}};

/// A file of data/ is a rule and the dates that it must give, in the order of the walk. A line is a word and its value:
/// "run" preview, schedule or upcoming; "start", "end", "from", "to"; "type" with its subtype; "interval", "detail"
/// (blanks kept), "order", "fault"; or a date that is expected.
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
    const auto fault = Walk(rule, *run->second, {date("from"), date("to")}, words.value("order", "MMDDYY"),
                            [&dates](const QDate &d) { dates << d.toString(Qt::ISODate); });
    EXPECT_EQ(dates, expected) << dates.join(' ').toStdString();
    EXPECT_EQ(fault.has_value(), words.contains("fault"));
    EXPECT_TRUE(!fault || *fault == faults.value(words["fault"])) << int(*fault);
}

struct LiteralWalk
{
    LiteralWalk(const RecurrenceRule &rule, bool monthByName, bool usefilter, const DateRange &range) :
        r(rule), byName(monthByName), filtered(usefilter), wanted(range)
    {
        const bool second = r.RecurrenceSubtype == 1;
        switch (Pattern(r.RecurrenceType)) {
        case Pattern::Daily: second ? everyWeekday() : everyXDays(); break;
        case Pattern::Weekly: weekly(); break;
        case Pattern::Monthly:
            if (moves())
                second ? sameWeekday(theWalks, r.RecurrenceInterval)
                       : sameDay(r.StartDate.month(), r.RecurrenceDetail.trimmed(), 1, r.RecurrenceInterval);
            break;
        case Pattern::Yearly:
            second ? sameWeekday(number(2, 2) + byName, 12)
                   : sameDay(number(0, -1) + byName, QString::number(r.RecurrenceInterval), 12, 12);
            break;
        case Pattern::Once: emitDate(fromText(r.RecurrenceDetail)); break;
        }
        if (failed)
            dates.clear();
    }

    std::vector<QDate> dates;
    bool failed = false;

private:
    static constexpr int theWalks = -1; ///< month of a weekday that comes each month

    static int weekday(const QDate &date) { return date.dayOfWeek() % 7 + 1; } // 1 is Sunday
    static QDate seek(QDate d, int day, int step)
    {
        while (weekday(d) != day)
            d = d.addDays(step);
        return d;
    }
    QDate fromText(const QString &text)
    {
        const auto date = ReadDate(text);
        failed = failed || !date;
        return date.value_or(QDate());
    }
    void emitDate(const QDate &d)
    {
        if (!filtered || (d >= wanted.from && d <= wanted.to))
            dates.push_back(d);
    }
    bool moves() { return !(failed = r.RecurrenceInterval <= 0); }
    int number(qsizetype at, qsizetype length)
    {
        bool ok = false;
        const int value = r.RecurrenceDetail.mid(at, length).toInt(&ok);
        failed = failed || !ok;
        return value;
    }

    void everyXDays()
    {
        for (QDate d = r.StartDate; moves() && d <= r.EndDate; d = d.addDays(r.RecurrenceInterval))
            emitDate(d);
    }
    void everyWeekday()
    {
        for (QDate d = r.StartDate; d <= r.EndDate; d = d.addDays(1))
            if (weekday(d) >= 2 && weekday(d) <= 6)
                emitDate(d);
    }
    void weekly()
    {
        for (int i = 1; moves() && i <= 7; ++i) {
            if (r.RecurrenceDetail.mid(i - 1, 1) != "1")
                continue;
            QDate d = seek(r.StartDate, i, 1);
            emitDate(d);
            while (d <= r.EndDate)
                emitDate(d = d.addDays(7 * r.RecurrenceInterval));
        }
    }
    /// From that day in the year of the start, or so many months later where that is before it.
    void sameDay(int month, const QString &day, int toFirst, int toNext)
    {
        QDate d = fromText(QString("%1/%2/%3").arg(month).arg(day).arg(r.StartDate.year()));
        if (failed)
            return;
        if (d < r.StartDate)
            d = AddMonths(d, toFirst);
        for (; d <= r.EndDate; d = AddMonths(d, toNext))
            emitDate(d);
    }
    /// A weekday by its ordinal; 4 is the last of the month.
    void sameWeekday(int month, int toNext)
    {
        const int x = number(0, 1), w = number(1, 1);
        failed = failed || w > 6 || month == 0 || month > 12; // 7 would look for ever
        for (QDate d = r.StartDate; !failed && d <= r.EndDate;) {
            const QDate first(d.year(), month == theWalks ? d.month() : month, 1);
            d = x < 4 ? seek(first, w + 1, 1).addDays(7 * x) : seek(AddMonths(first, 1).addDays(-1), w + 1, -1);
            if (d >= r.StartDate)
                emitDate(d);
            d = AddMonths(QDate(d.year(), d.month(), 1), toNext);
        }
    }

    const RecurrenceRule &r;
    bool byName, filtered;
    DateRange wanted;
};

class RandomRules
{
public:
    explicit RandomRules(unsigned seed) : m_engine(seed) {}

    int from(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_engine); }
    QDate day(int lastYear) { return QDate(1990, 1, 1).addDays(from(0, (lastYear - 1990) * 365)); }

    RecurrenceRule next()
    {
        RecurrenceRule rule;
        rule.RecurrenceType = qint16(from(0, 4));
        rule.RecurrenceSubtype = qint16(from(0, 1));
        rule.StartDate = day(2050);
        rule.EndDate = rule.StartDate.addDays(from(0, 9) == 0 ? from(-60, 40) : from(0, 3000));
        rule.RecurrenceInterval = qint16(from(0, 19) == 0 ? from(-1, 0) : from(1, from(0, 1) == 0 ? 4 : 60));
        rule.RecurrenceDetail = from(0, 19) == 0 ? QString("x") : detail(rule);
        if (rule.is(Pattern::Yearly) && rule.RecurrenceSubtype == 0)
            rule.RecurrenceInterval = qint16(from(0, 32));
        return rule;
    }

private:
    QString detail(const RecurrenceRule &rule)
    {
        const bool weekday = rule.RecurrenceSubtype == 1;
        switch (Pattern(rule.RecurrenceType)) {
        case Pattern::Daily: return {};
        case Pattern::Weekly: return QString("%1").arg(from(0, 127), 7, 2, QChar('0'));
        case Pattern::Monthly:
            return weekday ? QString("%1%2").arg(from(0, 5)).arg(from(0, 7)) : QString::number(from(0, 32));
        case Pattern::Yearly:
            return weekday ? QString("%1%2%3").arg(from(0, 4)).arg(from(0, 6)).arg(from(0, 12), 2, 10, QChar('0'))
                           : QString::number(from(0, 12));
        case Pattern::Once: return day(2050).toString("MM/dd/yyyy");
        }
        return {};
    }

    std::mt19937 m_engine;
};

} // namespace

TEST(Walk, GivesTheDatesOfEachGoldenFileInOrder)
{
    const ScriptedDoors doors;
    const QFileInfoList files = QDir(QStringLiteral(OMK_REMINDER_CASES)).entryInfoList({"*.txt"});
    ASSERT_FALSE(files.isEmpty());
    for (const QFileInfo &file : files) {
        SCOPED_TRACE(file.fileName().toStdString());
        expectGoldenDates(file.filePath());
    }
}

TEST(Walk, OfARandomRuleIsTheLiteralWalk)
{
    const ScriptedDoors doors;
    const char *given = std::getenv("OMK_TEST_SEED");
    const unsigned seed = given ? unsigned(std::strtoul(given, nullptr, 10)) : std::random_device()();
    std::printf("seed %u\n", seed);
    RandomRules random(seed);
    int made = 0, failed = 0;
    for (int i = 0; i < 6000; ++i) {
        const RecurrenceRule rule = random.next();
        const QDate from = rule.StartDate.addDays(random.from(-400, 2000));
        const DateRange range{from, from.addDays(random.from(0, 800))};
        const LiteralWalk literal(rule, i % 3 == 0, i % 3 != 0, range);
        std::vector<QDate> dates;
        const auto fault =
            Walk(rule, *runs[i % 3].second, range, "MMDDYY", [&dates](const QDate &date) { dates.push_back(date); });
        ASSERT_EQ(fault.has_value(), literal.failed) << "rule " << i << " of seed " << seed;
        ASSERT_TRUE(dates == literal.dates) << "rule " << i << " of seed " << seed;
        made += !dates.empty();
        failed += literal.failed;
    }
    EXPECT_GT(made, 2500) << "too few rules had dates for the comparison to mean anything";
    EXPECT_GT(failed, 300);
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
    EXPECT_EQ(OccurrenceKey(monday), "19980608");
}

TEST(StoredRules, OldRowsAndStrangeCellsReadWithoutAFailure)
{
    const ScriptedDoors doors;
    const QTemporaryDir folder;
    CreateDatabase(folder.filePath("OM.MDB"));
    const auto db = Database::OpenDatabase(folder.filePath("OM.MDB"));
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
