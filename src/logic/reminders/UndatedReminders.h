// Reminders whose dates cannot be worked out. A list that is being made leaves them out and goes on; at its end one box
// names them all, so that no stored rule can keep anybody out of the program.
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
    /// Shows the box if there are any. True if the keeper had them deleted. Throws RuntimeFailure.
    bool tell(Globals &globals) const;

private:
    struct Entry
    {
        QString task;
        QString reason;
    };

    std::vector<Entry> m_entries;
};
