#include "logic/reminders/ReminderRun.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include "logic/shell/Globals.h"
#include "platform/core/Doors.h"

std::vector<RecurrenceRule> LoadReminders(Globals &g)
{
    return ReadRules(*g.gDatabase->OpenRecordset(QStringLiteral("SELECT * FROM maintsched ")).rows());
}

UndatedReminders RunReminders(Globals &g, const std::vector<RecurrenceRule> &rules, const ReminderRun &run)
{
    constexpr qint64 milliseconds = 60; // between two updates of the screen; one takes longer than many rules
    UndatedReminders undated;
    QElapsedTimer sinceShown;
    sinceShown.start();
    const DateRange range = run.range.value_or(TwoYearsFrom(Now().date()));
    for (int i = 0; i < int(rules.size()); ++i) {
        const RecurrenceRule &rule = rules[std::size_t(i)];
        if (sinceShown.elapsed() >= milliseconds) {
            run.progress(u"Generating " + rule.TaskDescription + u"...", i);
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            sinceShown.restart();
        }
        if (const auto fault =
                Walk(rule, run.run, range, g.options.DateOrder, [&](const QDate &date) { run.send(date, i); }))
            undated.add(rule, *fault);
    }
    return undated;
}
