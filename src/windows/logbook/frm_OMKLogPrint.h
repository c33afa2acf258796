// Asks which log is to be printed, for this tank or for all, and where: printer, screen or file. Lives for one report.
#pragma once

#include "logic/logbook/LogKinds.h"
#include "ui_frm_OMKLogPrint.h"
#include "windows/shell/DialogForm.h"

class frm_OMKLogPrint : public DialogForm, public Ui::frm_OMKLogPrint
{
    Q_OBJECT
public:
    explicit frm_OMKLogPrint(const FormContext &context);

    /// Shows the window with that log and that tank selected.
    void ShowFor(LogTab log, const QString &tankId);

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void printLog(LogTab log);
    void PrintLivestockLog() { printLog(LivestockTab); }
    void PrintMaintenanceLog() { printLog(MaintenanceTab); }
    void PrintWaterQualityLog() { printLog(WaterTab); }

    void cmd_OK_Click();
    void cmd_Cancel_Click();

    QString m_tankId;
};
