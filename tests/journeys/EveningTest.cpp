// An evening at the desk: a tank planned with the advisers, reminders for the next weeks composed,
// changed and deleted, all of it backed up; and the evening after, when the toolbar has moved on.
#include <QListWidget>

#include "advisers/frm_Compat.h"
#include "advisers/frm_FantAddAnimal.h"
#include "advisers/frm_Fantasy.h"
#include "reminders/frm_Maintsched.h"
#include "reminders/frm_SchedNewAddEdit.h"
#include "reminders/frm_Schedule.h"
#include "windows/Desk.h"

namespace {

void planATank(frm_OMKMDIMain &main)
{
    hand::press(Qt::Key_M, Qt::ControlModifier);
    auto &compatible = Form<frm_Compat>();
    compatible.lst_Select->setFocus();
    hand::press(Qt::Key_End);
    EXPECT_GT(compatible.findChildren<QListWidget *>().first()->count(), 0);
    hand::choose(main, *main.mnu_Tools, "mnu_ToolsFantasy");
    auto &plan = Form<frm_Fantasy>();
    mouse::click(plan.lst_select->viewport(), plan.lst_select->visualItemRect(plan.lst_select->item(0)).center());
    Keeper::inNext<frm_FantAddAnimal>([](frm_FantAddAnimal &w) {
        hand::type(*w.txt_howmany, "3");
        mouse::click(w.cmd_Addit);
    });
    mouse::click(plan.cmd_AddAnimal);
    EXPECT_EQ(lines(*plan.lst_Fantank->model()), "3 Anemone-Clownfish - 1 in.");
}

void compose(QPushButton *button, const QString &task, const QString &days)
{
    Keeper::inNext<frm_SchedNewAddEdit>([&](frm_SchedNewAddEdit &w) {
        hand::type(*w.txt_TaskDescription, task);
        hand::type(*w.txt_DailyDays, days);
        EXPECT_EQ(w.txt_EnglishDesc->text(), QString("Every " + days + " days."));
        hand::press(Qt::Key_Return);
    });
    mouse::click(button);
}

} // namespace

using Evening = Desk;

TEST_F(Evening, OfPlansAndRemindersIsFoundAgainTheNextDayAndInTheBackup)
{
    planATank(*main);
    EXPECT_TRUE(keeper.told().startsWith("2|Please NOTE!")); // more than one of a kind

    hand::press(Qt::Key_E, Qt::ControlModifier); // Saturday, 14 March 2026
    auto &reminders = Form<frm_Maintsched>();
    compose(reminders.cmd_AddTask, "Feed", "2");
    compose(reminders.cmd_AddTask, "Dose", "5");
    compose(reminders.cmd_AddTask, "Wipe", "9");
    hand::clickRow(*reminders.lstv_MaintSched, 2);
    compose(reminders.cmd_update_task, "Dose iron", "3");
    hand::clickRow(*reminders.lstv_MaintSched, 3);
    mouse::click(reminders.cmd_DeleteTask);
    keeper.told();
    EXPECT_EQ(main->cbo_Reminders->itemText(0) + ", " + main->cbo_Reminders->itemText(3),
              "Sat 03/14/26 Dose iron, Tue 03/17/26 Dose iron");
    mouse::click(reminders.cmd_ViewSchedule);
    auto &schedule = Form<frm_Schedule>();
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(schedule.lstv_Reminders->Text(3) + ' ' + schedule.lstv_Reminders->Text(3, 1), "Monday 03/16/26 Feed");

    const QString copy = keeper.folder.filePath("copy.mdb");
    keeper.doors.files = {copy};
    hand::choose(*main, *main->mnu_File, "mnu_FileBackup");
    EXPECT_TRUE(keeper.told().contains("was backed up to"));
    EXPECT_EQ(Database::OpenDatabase(copy)->OpenRecordset("SELECT * FROM MAINTSCHED").RecordCount(), 2);

    keeper.doors.clock = keeper.doors.clock.addDays(1);
    startWith("MMDDYY", "/");
    EXPECT_EQ(main->cbo_Reminders->currentText(), "Mon 03/16/26 Feed");
    EXPECT_EQ(keeper.told(), "0");
}
