#include "platform/core/Doors.h"

#include "platform/core/SettingsStore.h"

namespace {

Doors *installed = nullptr;

} // namespace

Doors &Doors::current()
{
    if (!installed)
        qFatal("no doors are installed");
    return *installed;
}

Doors *Doors::install(Doors *doors) { return std::exchange(installed, doors); }

SaveDialogRequest AskForPrintFile(const QString &title, const PrintDialogRequest &request)
{
    const QString pdf = QStringLiteral("PDF (*.pdf)"), spreadsheet = QStringLiteral(";;Spreadsheet (*.csv)");
    return {title, request.documentName + u".pdf", request.offersSpreadsheet ? pdf + spreadsheet : pdf,
            QStringLiteral("pdf"), true};
}

MsgBoxAnswer MsgBox(const QString &text, int flags, const QString &title, const QString &details)
{
    return Doors::current().msgBox({text, flags, title, details});
}

void Beep() { Doors::current().beep(); }

QDateTime Now() { return Doors::current().now(); }

QString GetSetting(const QString &key, const QString &defaultValue)
{
    return Doors::current().settings().value(key, defaultValue);
}

void SaveSetting(const QString &key, const QString &value) { Doors::current().settings().setValue(key, value); }
