// Public members of the reminder editor. They outlive its controls: whoever opens it sets the rule first and reads it,
// and whether it was kept, afterwards. Lives in Globals.
#pragma once

#include "reminders/RecurrenceRule.h"

struct ReminderEditorMembers
{
    RecurrenceRule rule;
    bool EditCancelled = true; ///< until OK has been pressed on a rule that holds, and that was stored
};
