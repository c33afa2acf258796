#include "windows/logbook/frm_OMKLogPrint.h"

#include "data/Export.h"
#include "logic/logbook/LogReports.h"
#include "platform/controls/Guarded.h"
#include "platform/core/Doors.h"
#include "windows/common/PrintReport.h"

frm_OMKLogPrint::frm_OMKLogPrint(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    opt_Printer->setChecked(true);
    on(cmd_ok, &QPushButton::clicked, this, &frm_OMKLogPrint::cmd_OK_Click);
    on(CMD_Cancel, &QPushButton::clicked, this, &frm_OMKLogPrint::cmd_Cancel_Click);
}

void frm_OMKLogPrint::ShowFor(LogTab log, const QString &tankId)
{
    const std::array<QRadioButton *, logTabs.size()> options = {opt_WaterQuality, opt_Livestock, opt_Maintenance};
    options[log]->setChecked(true);
    m_tankId = tankId;
    main.disablePrint();
    ShowModal();
}

void frm_OMKLogPrint::printLog(LogTab log)
{
    const auto tank = chk_PrintForAllTanks->isChecked() ? std::nullopt : std::optional<QString>(m_tankId);
    const PrintTarget target = opt_Window->isChecked() ? PrintTarget::Window
                               : opt_File->isChecked() ? PrintTarget::File
                                                       : PrintTarget::Printer;
    Report report = MakeLogReport(log, *g.gDatabase, g.options.DatePicture, tank);
    report.saveSpreadsheet = [&](const QString &fileName) { ExportLog(g, log, tank, fileName); };
    if (PrintReport(main, report, target) == PrintOutcome::Empty)
        MsgBox(EmptyLogText(log), vbInformation, QStringLiteral("Note!"));
}

void frm_OMKLogPrint::cmd_OK_Click()
{
    const Forms::Pin whileItPrints(*this);
    if (opt_Livestock->isChecked())
        PrintLivestockLog();
    else if (opt_Maintenance->isChecked())
        PrintMaintenanceLog();
    else if (opt_WaterQuality->isChecked())
        PrintWaterQualityLog();
    Unload(*this);
}

void frm_OMKLogPrint::cmd_Cancel_Click() { Unload(*this); }
