#include "windows/reminders/frm_Maintsched.h"

#include "logic/reminders/ReminderRun.h"
#include "logic/shell/ErrorHandler.h"
#include "platform/controls/EmptyText.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListKeys.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/reminders/frm_Schedule.h"

namespace {

const QString reminderByTask = QStringLiteral("where coalesce(schedtask, '') = ?");
const QString twice =
    QStringLiteral("That identical task already exists. Make your new task unique by changing at least one letter.");

} // namespace

frm_Maintsched::frm_Maintsched(const FormContext &context) : ChildForm(context)
{
    setupUi(this);
    setWindowIcon(Icon("handwithstring"));
    lstv_MaintSched->setColumns({{QStringLiteral("Task"), QStringLiteral("Task"), false, 200},
                                 {QStringLiteral("Scheduling"), QStringLiteral("Scheduling"), false, 240},
                                 {QStringLiteral("Start Date"), QStringLiteral("Start Date"), false, 80},
                                 {QStringLiteral("End Date"), QStringLiteral("End Date"), false, 80}});
    new EmptyText(*lstv_MaintSched, QStringLiteral("There are no reminders yet. Press \"Add New...\" to make one."));
    beginWith(lstv_MaintSched);
    on(lstv_MaintSched, &ListView::Click, this, &frm_Maintsched::lstv_MaintSched_Click);
    connect(lstv_MaintSched->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (lstv_MaintSched->SelectedItem() > 0)
            lstv_MaintSched_Click(); // the selection can also change by keys
    });
    on(lstv_MaintSched, &ListView::DblClick, this, &frm_Maintsched::lstv_MaintSched_DblClick);
    OnListKey(*lstv_MaintSched, Qt::Key_Delete, *cmd_DeleteTask);
    OnListKey(*lstv_MaintSched, Qt::Key_Insert, *cmd_AddTask);
    on(cmd_AddTask, &QPushButton::clicked, this, &frm_Maintsched::cmd_AddTask_Click);
    on(cmd_update_task, &QPushButton::clicked, this, &frm_Maintsched::cmd_update_task_Click);
    on(cmd_DeleteTask, &QPushButton::clicked, this, &frm_Maintsched::cmd_Deletetask_Click);
    on(cmd_ViewSchedule, &QPushButton::clicked, this, &frm_Maintsched::cmd_ViewSchedule_Click);
}

void frm_Maintsched::Form_Load()
{
    try {
        FillTaskList();
    } catch (const RuntimeFailure &failure) {
        HandleError(g, failure, twice, vbOKOnly, {});
    }
}

void frm_Maintsched::Form_Activate()
{
    main.offerPrint(*this, true); // enabled although there is nothing to print here
    SetListViewStyle(*lstv_MaintSched);
}

void frm_Maintsched::FillTaskList()
{
    lstv_MaintSched->Clear();
    const auto rules = LoadReminders(g);
    cmd_ViewSchedule->setEnabled(!rules.empty());
    for (const RecurrenceRule &rule : rules)
        lstv_MaintSched->Add({}, {rule.TaskDescription, rule.EnglishDescription,
                                  Format(rule.StartDate, g.options.DatePicture),
                                  Format(rule.EndDate, g.options.DatePicture)});
    cmd_update_task->setEnabled(false);
    cmd_DeleteTask->setEnabled(false);
    main.Top20List();
}

void frm_Maintsched::lstv_MaintSched_Click()
{
    cmd_update_task->setEnabled(true);
    cmd_DeleteTask->setEnabled(true);
}

bool frm_Maintsched::stored(Recordset &row, const RecurrenceRule &rule)
{
    try {
        WriteRule(row, rule);
        row.Update();
        return true;
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::DuplicateKey)
            throw;
        HandleError(g, failure, twice, vbOKOnly, {});
        return false;
    }
}

void frm_Maintsched::cmd_AddTask_Click()
{
    const bool added =
        Form<frm_SchedNewAddEdit>().AddNewTask(NewRule(Now().date()), [this](const RecurrenceRule &rule) {
            Recordset row = g.gDatabase->OpenForAppend(QStringLiteral("maintsched"));
            row.AddNew();
            return stored(row, rule);
        });
    if (added)
        FillTaskList();
}

std::optional<QString> frm_Maintsched::selectedTask(const QString &otherwise)
{
    if (const int item = lstv_MaintSched->SelectedItem())
        return lstv_MaintSched->Text(item);
    Beep();
    MsgBox(otherwise, vbInformation, QStringLiteral("Note!"));
    return {};
}

void frm_Maintsched::cmd_update_task_Click()
{
    const auto task =
        selectedTask(QStringLiteral("You must first select a maintenance task to change by clicking on it."));
    if (!task)
        return;
    Recordset row = g.gDatabase->OpenForUpdate(QStringLiteral("maintsched"), reminderByTask, {*task});
    if (row.isEmpty()) {
        MsgBox(QStringLiteral("Unable to retrieve detail for reminder message."));
        return;
    }
    const bool changed =
        Form<frm_SchedNewAddEdit>().ShowExistingTask(ReadRule(row), [this, &row](const RecurrenceRule &rule) {
            row.Edit();
            return stored(row, rule);
        });
    if (changed)
        FillTaskList();
}

void frm_Maintsched::cmd_Deletetask_Click()
{
    const auto task =
        selectedTask(QStringLiteral("You must first select a maintenance task to delete by clicking on it."));
    if (!task)
        return;
    Recordset asked = g.gDatabase->OpenForUpdate(QStringLiteral("maintsched"), reminderByTask, {*task});
    const QString sentence = asked.isEmpty() ? QString() : ReadRule(asked).EnglishDescription;
    g.gMessage = u"Are you sure you want to delete this entry?\n" + *task + u"\nscheduled for " + sentence +
                 u"?\n(Remember, you CANNOT \"undo\" a delete!)";
    Beep();
    if (MsgBox(g.gMessage, vbOKCancel + vbQuestion, QStringLiteral("Are you sure...")) != MsgBoxAnswer::OK)
        return;
    Recordset found = g.gDatabase->OpenForUpdate(QStringLiteral("maintsched"), reminderByTask, {*task});
    if (found.isEmpty())
        MsgBox(QStringLiteral("Unable to delete the task!"));
    else
        found.Delete();
    FillTaskList();
}

void frm_Maintsched::cmd_ViewSchedule_Click() { main.ShowChild(Form<frm_Schedule>()); }
