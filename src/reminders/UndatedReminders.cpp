#include "reminders/UndatedReminders.h"

#include "platform/Doors.h"
#include "shell/Globals.h"

namespace {

constexpr int mostLines = 12; ///< of names that fit a box; a longer list is shown whole on demand

QString reason(WalkFault fault)
{
    switch (fault) {
    case WalkFault::NoStart: return QStringLiteral("it has no start date");
    case WalkFault::NoEnd: return QStringLiteral("it has no end date");
    case WalkFault::NoStep: return QStringLiteral("its interval is not above 0");
    case WalkFault::NoDay: return QStringLiteral("its day is none of that month");
    case WalkFault::NoOrdinal: return QStringLiteral("it does not say which weekday of the month");
    case WalkFault::NoWeekday: return QStringLiteral("its weekday is none");
    case WalkFault::NoMonth: return QStringLiteral("its month cannot be read");
    case WalkFault::NoOnceDate: return QStringLiteral("its date is none");
    }
    return {};
}

} // namespace

void UndatedReminders::add(const QString &task, WalkFault fault) { m_entries.push_back({task, fault}); }

QString UndatedReminders::line(const Entry &entry) const
{
    return QString(u"\u2022 " + entry.task + u" (" + reason(entry.fault) + u')');
}

bool UndatedReminders::tell(Globals &g) const
{
    if (m_entries.empty())
        return false;
    QStringList all;
    for (const Entry &entry : m_entries)
        all << line(entry);
    QStringList shown = all.mid(0, mostLines);
    const bool more = all.size() > mostLines;
    if (more)
        shown << QStringLiteral("... and %1 more, which the details name.").arg(all.size() - mostLines);
    g.gMessage = u"The dates of these reminders cannot be worked out, so the list is made without them:\n\n" +
                 shown.join(u'\n') +
                 u"\n\n\"Skip\" leaves them as they are; you can put them right in \"Add or Change Reminders\". "
                 u"\"Delete\" removes them for good.";
    Beep();
    const auto answer = MsgBox(g.gMessage, omkSkipDelete + vbExclamation, QStringLiteral("Reminders without dates"),
                               more ? all.join(u'\n') : QString());
    if (answer != MsgBoxAnswer::Delete)
        return false;
    Database::Transaction whole(*g.gDatabase);
    for (const Entry &entry : m_entries)
        g.gDatabase->Execute(QStringLiteral("DELETE FROM MAINTSCHED WHERE coalesce(SchedTask, '') = ?"), {entry.task});
    whole.commit();
    return true;
}
