// The Fantasy Tank: the keeper plans an imaginary tank and adds animals, and a bar shows how full it would be. The plan
// lives as long as the window. If the keeper declines to change the water, the option shows the new water beside the
// old list and plan; the number of an animal is then looked up in the table of the new water.
#pragma once

#include "logic/advisers/FantasyPlan.h"
#include "platform/controls/LeavingChecks.h"
#include "ui_frm_Fantasy.h"
#include "windows/shell/ChildForm.h"

class frm_Fantasy : public ChildForm, public Ui::frm_Fantasy
{
    Q_OBJECT
public:
    explicit frm_Fantasy(const FormContext &context);

    QSize minimumSizeHint() const override;

    /// Shows the window, and over it a reminder.
    void Form_Load();
    /// Empties the tank after a question. Nothing calls it at present.
    void ConfirmResetFantasyTank();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    WaterKind water() const { return opt_Salt->isChecked() ? WaterKind::Salt : WaterKind::Fresh; }
    void RecalcHolding();
    void ResetFantasyTank();
    void changeWater();
    bool txt_tanksize_LostFocus();

    void opt_Salt_Click();
    void opt_fresh_click();
    void chk_WetDryIncluded_Click();
    void chk_Taller_Click();
    void ud_tanksize_Change();
    void lst_select_Click();
    void lst_select_DblClick();
    void lst_Fantank_Click();
    void lst_Fantank_DblClick();
    void cmd_AddAnimal_Click();
    void cmd_RemoveAnimal_Click();

    FantasyPlan m_plan;
    LeavingChecks m_checks;
};
