#include "logic/shell/ErrorHandler.h"

#include "logic/shell/Globals.h"
#include "platform/core/RuntimeFailure.h"

namespace {

QString messageOf(const RuntimeFailure &failure, const QString &duplicateText)
{
    switch (failure.number()) {
    case Failure::DeviceUnavailable:
        return QStringLiteral("ERROR 68: Drive : not available."); // the drive's name has never been filled in
    case Failure::PathNotFound: return QStringLiteral("ERROR 76: That path doesn't exist.");
    case Failure::DuplicateKey: return duplicateText;
    default: return QStringLiteral("ERROR %1 occurred.").arg(static_cast<int>(failure.number()));
    }
}

} // namespace

void HandleError(Globals &globals, const RuntimeFailure &failure, const QString &duplicateText, int boxFlags,
                 const QString &title)
{
    globals.gMessage = messageOf(failure, duplicateText);
    Beep();
    MsgBox(globals.gMessage, boxFlags, title);
}
