// The list of all reminders, from which they are added, changed and deleted. A reminder is known by its task. Each fill
// of the list brings the upcoming reminders of the toolbar up to date.
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
    /// Fills the list; a failure is told here, and the window opens nevertheless.
    void Form_Load();
    void Form_Activate() override;
    void FillTaskList();

private:
    /// Writes the rule into the row that is being added or changed; false, after a box, where its task exists already.
    bool stored(Recordset &row, const RecurrenceRule &rule);
    /// The task of the selected row; nothing, after a box in those words, where none is selected.
    std::optional<QString> selectedTask(const QString &otherwise);

    void lstv_MaintSched_Click();
    void lstv_MaintSched_DblClick() { cmd_update_task_Click(); }
    void cmd_AddTask_Click();
    void cmd_update_task_Click();
    void cmd_Deletetask_Click();
    void cmd_ViewSchedule_Click();
};
