#include "logic/reminders/ReminderRun.h"

#include "logic/shell/Globals.h"
#include "platform/core/Doors.h"
#include "platform/core/ScreenPulse.h"

std::vector<RecurrenceRule> LoadReminders(Globals &g)
{
    return ReadRules(*g.gDatabase->OpenRecordset(QStringLiteral("SELECT * FROM maintsched ")).rows());
}

UndatedReminders RunReminders(Globals &g, const std::vector<RecurrenceRule> &rules, const ReminderRun &run)
{
    UndatedReminders undated;
    ScreenPulse pulse;
    const DateRange range = run.range.value_or(TwoYearsFrom(Now().date()));
    for (int i = 0; i < int(rules.size()); ++i) {
        const RecurrenceRule &rule = rules[std::size_t(i)];
        pulse.beat([&] { run.progress(u"Generating " + rule.TaskDescription + u"...", i); });
        if (const auto fault =
                Walk(rule, run.run, range, g.options.DateOrder, [&](const QDate &date) { run.send(date, i); }))
            undated.add(rule, *fault);
    }
    return undated;
}
