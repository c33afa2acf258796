// The doors of a program without windows. The clock and the settings are the real ones. A message box becomes lines on
// stderr and gets its default answer. No verb asks questions, prints on paper or shows help.
#pragma once

#include <memory>

#include "platform/core/Doors.h"
#include "platform/core/SettingsStore.h"

class TerminalDoors : public Doors
{
public:
    TerminalDoors();

    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override;
    bool failureBox(const RuntimeFailure &failure, bool mayReturn) override;
    void beep() override {}
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override;
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override;
    std::unique_ptr<PageSink> openPages(const PageTarget &target) override;
    std::optional<PrintDialogAnswer> preview(const PreviewRequest &request) override;
    bool showHelp(const HelpRequest &request) override;
    QDateTime now() override;
    double random() override { return 0.5; }
    SettingsStore &settings() override { return m_settings; }

private:
    SettingsStore m_settings;
};

/// Prints a line on stdout, in UTF-8.
void Say(const QString &line);
/// Prints a line on stderr, after the name of the program.
void Complain(const QString &line);
/// A text of the keeper as part of a line: line breaks and control characters become blanks, because a terminal would
/// obey them.
QString OnOneLine(QString text);
/// "1 tank", "1,204 entries".
QString Counted(qint64 number, const char *one, const char *many);
