// The doors of a real desktop: message boxes, dialogs, the system's clock and the user's settings file. main() installs
// them before any window is made.
#pragma once

#include <memory>

#include "platform/core/Doors.h"

class HelpViewer;

class DesktopDoors : public Doors
{
public:
    DesktopDoors();
    ~DesktopDoors() override;

    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override;
    bool failureBox(const RuntimeFailure &failure, bool mayReturn) override;
    void beep() override;
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override;
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override;
    std::unique_ptr<PageSink> openPages(const PageTarget &target) override;
    std::optional<PrintDialogAnswer> preview(const PreviewRequest &request) override;
    bool showHelp(const HelpRequest &request) override;
    QDateTime now() override;
    double random() override;
    SettingsStore &settings() override { return *m_settings; }

private:
    /// Shows the print dialog for this printer, or asks for the name of a PDF if the machine has no printer.
    std::optional<PrintDialogAnswer> askWhere(const PrintDialogRequest &request,
                                              const std::shared_ptr<QPrinter> &printer);

    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<HelpViewer> m_help; ///< made when help is asked for the first time
};
