#include "datacommand/TerminalDoors.h"

#include <cstdio>

#include <QLocale>

#include "platform/core/Pages.h"
#include "platform/core/RuntimeFailure.h"

TerminalDoors::TerminalDoors() : m_settings(SettingsStore::userFileName()) {}

MsgBoxAnswer TerminalDoors::msgBox(const MsgBoxRequest &request)
{
    Complain(request.text);
    switch (request.buttons()) {
    case vbOKOnly: return MsgBoxAnswer::OK;
    case omkSkipDelete: return MsgBoxAnswer::Skip;
    case vbYesNo: return MsgBoxAnswer::No;
    default: return MsgBoxAnswer::Cancel;
    }
}

bool TerminalDoors::failureBox(const RuntimeFailure &failure, bool)
{
    Complain(failure.description());
    return true;
}

std::optional<QString> TerminalDoors::saveDialog(const SaveDialogRequest &) { return std::nullopt; }
std::optional<PrintDialogAnswer> TerminalDoors::printDialog(const PrintDialogRequest &) { return std::nullopt; }

std::unique_ptr<PageSink> TerminalDoors::openPages(const PageTarget &)
{
    throw RuntimeFailure(Failure::DeviceUnavailable, QStringLiteral("Nothing is printed from a terminal."));
}

std::optional<PrintDialogAnswer> TerminalDoors::preview(const PreviewRequest &) { return std::nullopt; }
bool TerminalDoors::showHelp(const HelpRequest &) { return false; }
QDateTime TerminalDoors::now() { return QDateTime::currentDateTime(); }

void Say(const QString &line) { std::fputs((line + u'\n').toUtf8().constData(), stdout); }

void Complain(const QString &line)
{
    std::fflush(stdout); // so that the lines of stdout and stderr are in order on a terminal
    std::fputs((u"ostrelmark-data: " + line + u'\n').toUtf8().constData(), stderr);
}

QString Counted(qint64 number, const char *one, const char *many)
{
    return QLocale::c().toString(number) + u' ' + QLatin1String(number == 1 ? one : many);
}

QString OnOneLine(QString text)
{
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph)
            c = u' ';
    return text;
}
