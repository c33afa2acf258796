// The dialog for the keeper's preferences, with three tabs. The values are in Globals (options, gDefaultWaterType,
// gUserFieldName1 and gUserFieldName2) and outlive the window.
#pragma once

#include <array>

#include "logic/shell/Options.h"
#include "ui_frm_OMKOptions.h"
#include "windows/shell/DialogForm.h"

class frm_OMKOptions : public DialogForm, public Ui::frm_OMKOptions
{
    Q_OBJECT
public:
    explicit frm_OMKOptions(const FormContext &context);

    /// Reads all stored values into Globals and shows them. Throws RuntimeFailure if CONFIG cannot be read.
    void Get_Initial_Properties();
    /// Shows the dialog at a tab: 0 General, 1 Graphing, 2 Livestock Lists. OK stores; closing it in any other way
    /// restores the values that it was opened with.
    void ShowOptions(int tab);
    /// Whether both user field names are valid: not blank and not equal. If not, shows what is wrong.
    bool CheckUserFieldNames();

protected:
    void Cancel() override { cmdCancel_Click(); }

private:
    using Handler = void (frm_OMKOptions::*)();
    void makeChecks();
    void connectControls();
    void connectOption(QRadioButton *option, Handler handler);

    void opt_Salt_Click();
    void opt_Fresh_Click();
    void opt_Dateform_MMDDYY_Click();
    void opt_Dateform_ddmmyy_Click();
    void opt_Dateform_YYMMDD_Click();
    void cbo_Delimiter_Click();
    void cbo_GraphType_Click();
    void chk_SkipZeroValues_Click();
    void opt_BWPrinting_Click();
    void opt_ColorPrinting_Click();
    void opt_UseFreshDB_Click();
    void opt_UseFreshFile_Click();
    void opt_UseSaltDb_Click();
    void opt_UseSaltFile_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    void fillLists();
    void showGeneral(const OptionsMembers &options);
    void showGraphSettings(const OptionsMembers &options);
    void showDateCaptions();
    QString graphChecks() const;
    /// The check boxes of the measurements, in the order of GraphChecks.
    std::array<QCheckBox *, measurementCount> m_checks;
    Recordset m_config;       ///< the row of CONFIG, which OK changes
    OptionsMembers m_inForce; ///< the values that the dialog was opened with
};
