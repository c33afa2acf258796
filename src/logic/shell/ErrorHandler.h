// The shared error handler of windows that store one row. It shows a message of its own instead of the failure's, and
// the window stays open with what was typed.
#pragma once

#include <QString>

#include "platform/core/Doors.h"

class RuntimeFailure;
struct Globals;

/// Builds gMessage from the failure's number and shows it after a beep. `duplicateText` is the window's message about a
/// duplicate.
void HandleError(Globals &globals, const RuntimeFailure &failure, const QString &duplicateText, int boxFlags = vbOKOnly,
                 const QString &title = {});
