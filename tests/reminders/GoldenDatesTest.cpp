// Each file of data/ is a rule and the dates that it must give, in the order of the walk. A line is a word and its
// value: "run" preview, schedule or upcoming; "start", "end", "from", "to"; "type" with its subtype; "interval",
// "detail" (blanks kept), "order", "fault"; or a date that is expected.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QMap>

#include "reminders/Occurrences.h"
#include "reminders/RecurrenceRule.h"
#include "support/ScriptedDoors.h"

namespace {

struct GoldenCase
{
    explicit GoldenCase(const QString &fileName)
    {
        QFile file(fileName);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
            if (line[0].isDigit())
                dates << line;
            else if (line[0] != '#')
                words[line.section(' ', 0, 0)] = line.section(' ', 1);
    }
    QDate date(const QString &word) const { return QDate::fromString(words.value(word), Qt::ISODate); }

    QMap<QString, QString> words;
    QStringList dates;
};

const QMap<QString, const OccurrenceRun *> runsByName{
    {"preview", &previewRun}, {"schedule", &scheduleRun}, {"upcoming", &upcomingRun}};
const QMap<QString, WalkFault> faultsByName{{"NoStart", WalkFault::NoStart},     {"NoEnd", WalkFault::NoEnd},
                                            {"NoStep", WalkFault::NoStep},       {"NoDay", WalkFault::NoDay},
                                            {"NoOrdinal", WalkFault::NoOrdinal}, {"NoWeekday", WalkFault::NoWeekday},
                                            {"NoMonth", WalkFault::NoMonth},     {"NoOnceDate", WalkFault::NoOnceDate}};

} // namespace

TEST(GoldenDates, EachFileGivesItsDatesInOrder)
{
    const ScriptedDoors doors;
    const QFileInfoList files = QDir(QStringLiteral(OMK_REMINDER_CASES)).entryInfoList({"*.txt"});
    ASSERT_FALSE(files.isEmpty());
    for (const QFileInfo &file : files) {
        SCOPED_TRACE(file.fileName().toStdString());
        const GoldenCase golden(file.filePath());
        ASSERT_TRUE(runsByName.contains(golden.words["run"]));
        RecurrenceRule rule;
        rule.StartDate = golden.date("start");
        rule.EndDate = golden.date("end");
        rule.RecurrenceType = golden.words["type"].section(' ', 0, 0).toShort();
        rule.RecurrenceSubtype = golden.words["type"].section(' ', 1).toShort();
        rule.RecurrenceInterval = golden.words["interval"].toShort();
        rule.RecurrenceDetail = golden.words["detail"];
        QStringList dates;
        const auto fault = Walk(rule, *runsByName[golden.words["run"]], {golden.date("from"), golden.date("to")},
                                golden.words.value("order", "MMDDYY"),
                                [&dates](const QDate &date) { dates << date.toString(Qt::ISODate); });
        EXPECT_EQ(dates, golden.dates) << dates.join(' ').toStdString();
        EXPECT_EQ(fault.has_value(), golden.words.contains("fault"));
        EXPECT_TRUE(!fault || *fault == faultsByName.value(golden.words["fault"])) << int(*fault);
    }
}
