// Reminders whose dates cannot be worked out. A list leaves them out, and at its end one message box names them all, so
// that no stored rule can prevent the program from starting.
#pragma once

#include <vector>

#include <QStringList>

#include "logic/reminders/Occurrences.h"

struct Globals;

class UndatedReminders
{
public:
    void add(const RecurrenceRule &rule, WalkFault fault);
    /// Each task with what is wrong, such as "Feed (it has no end date)".
    QStringList lines() const;
    /// Shows the message box if there are any. Returns true if the keeper had them deleted. Throws RuntimeFailure.
    bool tell(Globals &globals) const;

private:
    struct Entry
    {
        QString task;
        QString reason;
    };

    std::vector<Entry> m_entries;
};
