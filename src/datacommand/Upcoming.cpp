#include "datacommand/Upcoming.h"

#include <algorithm>

#include "datacommand/DataCommand.h"
#include "datacommand/KeepersData.h"
#include "datacommand/TerminalDoors.h"
#include "logic/reminders/ReminderRun.h"

int TellUpcoming(KeepersData &data, int days)
{
    struct Due
    {
        QDate date;
        QString task;
    };
    Globals &globals = data.open();
    const std::vector<RecurrenceRule> rules = LoadReminders(globals);
    std::vector<Due> all;
    const QDate today = Now().date();
    const UndatedReminders undated = RunReminders(globals, rules,
                                                  {upcomingRun, DateRange{today, today.addDays(days - 1)},
                                                   [&](const QDate &date, int rule) {
                                                       all.push_back({date, rules[std::size_t(rule)].TaskDescription});
                                                   },
                                                   [](const QString &, int) {}});
    std::ranges::sort(all, [](const Due &one, const Due &other) {
        return one.date != other.date ? one.date < other.date : one.task.compare(other.task, Qt::CaseInsensitive) < 0;
    });
    for (const Due &due : all)
        Say(OccurrenceText(upcomingRun, due.date, globals.options.DatePicture) + u' ' + OnOneLine(due.task));
    return TellUndated(undated);
}

int TellUndated(const UndatedReminders &undated)
{
    for (const QString &line : undated.lines())
        Complain(u"left out, because its dates cannot be worked out: " + OnOneLine(line));
    return undated.lines().isEmpty() ? DataDone : DataFault;
}
