// The list of all reminders, where they are added, changed and deleted. A reminder is identified by its task. Filling
// the list also updates the upcoming reminders in the toolbar.
#pragma once

#include <optional>

#include "ui_frm_Maintsched.h"
#include "windows/shell/ChildForm.h"

struct RecurrenceRule;

class frm_Maintsched : public ChildForm, public Ui::frm_Maintsched
{
    Q_OBJECT
public:
    explicit frm_Maintsched(const FormContext &context);
    /// Fills the list. If that fails, a message says so and the window still opens.
    void Form_Load();
    void Form_Activate() override;
    void FillTaskList();

private:
    /// Writes the rule into the row that is being added or changed. If its task exists already, shows a message and
    /// returns false.
    bool stored(Recordset &row, const RecurrenceRule &rule);
    /// The task of the selected row. If none is selected, shows `otherwise` and returns nothing.
    std::optional<QString> selectedTask(const QString &otherwise);

    void lstv_MaintSched_Click();
    void lstv_MaintSched_DblClick() { cmd_update_task_Click(); }
    void cmd_AddTask_Click();
    void cmd_update_task_Click();
    void cmd_Deletetask_Click();
    void cmd_ViewSchedule_Click();
};
