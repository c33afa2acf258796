// Asks how many animals of which size are added to the Fantasy Tank. "Drop It In" adds a row to the plan and warns
// about the other animals there, but refuses none. Opened by frm_Fantasy, which owns the plan.
#pragma once

#include "logic/advisers/FantasyPlan.h"
#include "ui_frm_FantAddAnimal.h"
#include "windows/shell/DialogForm.h"

class frm_FantAddAnimal : public DialogForm, public Ui::frm_FantAddAnimal
{
    Q_OBJECT
public:
    explicit frm_FantAddAnimal(const FormContext &context);

    /// Asks about the plan's SelectedAnimal, from the table of that water; `line` is its text in the list. Returns when
    /// the animal is in the plan or the keeper cancels. The plan must outlive the call.
    void ShowAnimal(FantasyPlan &plan, WaterKind water, const QString &line);

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void AddAnimal(double howMany, double howBig);
    void ShowSizeReminder();
    void remindOfSize();

    void cmd_Addit_Click();
    void cmd_Cancel_Click();
    void txt_Howbig_Change();
    void ud_howmany_Change();
    void ud_Howbig_Change();

    FantasyPlan *m_plan = nullptr;
    WaterKind m_water = WaterKind::Salt;
};
