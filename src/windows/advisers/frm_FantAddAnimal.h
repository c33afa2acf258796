// Asks how many of an animal, and how big, are dropped into the Fantasy Tank; "Drop It In" adds the row to the plan and
// tells what the animal would meet there. The warnings stop nobody. Opened by frm_Fantasy, which owns the plan.
#pragma once

#include "logic/advisers/FantasyPlan.h"
#include "ui_frm_FantAddAnimal.h"
#include "windows/shell/DialogForm.h"

class frm_FantAddAnimal : public DialogForm, public Ui::frm_FantAddAnimal
{
    Q_OBJECT
public:
    explicit frm_FantAddAnimal(const FormContext &context);

    /// Asks about the plan's SelectedAnimal, by the table of that water; `line` is how the list names it. Back when the
    /// animal is in the plan, or was cancelled. The plan must live as long.
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
