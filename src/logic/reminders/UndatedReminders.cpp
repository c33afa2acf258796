#include "logic/reminders/UndatedReminders.h"

#include "logic/reminders/RecurrenceRule.h"
#include "logic/shell/Globals.h"
#include "platform/core/Doors.h"

namespace {

constexpr int mostLines = 12; ///< lines that fit in a message box; the details show a longer list

QString reason(WalkFault fault)
{
    switch (fault) {
    case WalkFault::NoStart: return QStringLiteral("it has no start date");
    case WalkFault::NoEnd: return QStringLiteral("it has no end date");
    case WalkFault::NoStep: return QStringLiteral("its interval is not above 0");
    case WalkFault::NoDay: return QStringLiteral("that month does not have its day");
    case WalkFault::NoOrdinal: return QStringLiteral("it does not say which weekday of the month");
    case WalkFault::NoWeekday: return QStringLiteral("its weekday cannot be read");
    case WalkFault::NoMonth: return QStringLiteral("its month cannot be read");
    case WalkFault::NoOnceDate: return QStringLiteral("its date cannot be read");
    }
    return {};
}

/// Whether the rule is valid and has dates in the editor's preview, but not in the lists, which read the month of a
/// yearly rule one too low and then find no such month or day.
bool onlyTheListsHaveNone(const RecurrenceRule &rule)
{
    return rule.is(Pattern::Yearly) && !Walk(rule, previewRun, {}, {}, [](const QDate &) {});
}

} // namespace

void UndatedReminders::add(const RecurrenceRule &rule, WalkFault fault)
{
    m_entries.push_back({rule.TaskDescription, onlyTheListsHaveNone(rule)
                                                   ? QStringLiteral("no list can show a yearly reminder of that date; "
                                                                    "make it a monthly one, of every 12 months")
                                                   : reason(fault)});
}

QStringList UndatedReminders::lines() const
{
    QStringList all;
    for (const Entry &entry : m_entries)
        all << entry.task + u" (" + entry.reason + u')';
    return all;
}

bool UndatedReminders::tell(Globals &g) const
{
    if (m_entries.empty())
        return false;
    QStringList all = lines();
    for (QString &line : all)
        line.prepend(u"\u2022 ");
    QStringList shown = all.mid(0, mostLines);
    const bool more = all.size() > mostLines;
    if (more)
        shown << QStringLiteral("... and %1 more, which the details list.").arg(all.size() - mostLines);
    const QString text =
        u"The dates of these reminders cannot be worked out, so the list is made without them:\n\n" +
        shown.join(u'\n') +
        u"\n\n\"Skip\" leaves them as they are; you can then correct them in \"Add or Change Reminders\". "
        u"\"Delete\" removes them permanently.";
    Beep();
    const auto answer = MsgBox(text, omkSkipDelete + vbExclamation, QStringLiteral("Reminders without dates"),
                               more ? all.join(u'\n') : QString());
    if (answer != MsgBoxAnswer::Delete)
        return false;
    Database::Transaction whole(*g.gDatabase);
    for (const Entry &entry : m_entries)
        g.gDatabase->Execute(QStringLiteral("DELETE FROM MAINTSCHED WHERE coalesce(SchedTask, '') = ?"), {entry.task});
    whole.commit();
    return true;
}
