#include "shots/Album.h"
#include "shots/Plays.h"

#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/frm_OMKMDIMain.h"

namespace {

using ComposeReminder = std::function<void(frm_SchedNewAddEdit &)>;

struct SampleReminder
{
    const char *task;
    ComposeReminder compose;
};

/// A reminder of each pattern.
const SampleReminder sampleReminders[] = {
    {"Feed frozen food", [](frm_SchedNewAddEdit &w) { w.txt_DailyDays->setText(QStringLiteral("2")); }},
    {"Water change, 10 gallons",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Weekly->setChecked(true);
         w.chk_WeeklyDay[6]->setChecked(true);
     }},
    {"Rinse the filter sponge",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Monthly->setChecked(true);
         w.Opt_MonthlyXWeekdayofEveryMonth->setChecked(true);
         w.cbo_MonthlyWeekday->setCurrentIndex(0);
     }},
    {"Replace the UV lamp",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Yearly->setChecked(true);
         w.cbo_YearlyMonth->setCurrentIndex(8);
         w.txt_YearlyDay->setText(QStringLiteral("15"));
     }},
    {"Fetch the new clownfish",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Once->setChecked(true);
         w.txt_OnceDate->setText(QStringLiteral("06/27/26"));
     }},
};

} // namespace

void playReminders(Album &album, frm_OMKMDIMain &main)
{
    main.mnu_ToolsRemindersAddEdit_Click();
    auto &list = Form<frm_Maintsched>();
    for (const SampleReminder &reminder : sampleReminders) {
        inDialog([&list] { list.cmd_AddTask->click(); },
                 [&] {
                     auto &editor = Form<frm_SchedNewAddEdit>();
                     editor.txt_TaskDescription->setText(QLatin1String(reminder.task));
                     reminder.compose(editor);
                     const QString pattern = editor.panels->currentWidget()->objectName().mid(4).toLower();
                     if (pattern == u"monthly")
                         editor.cmd_PreviewSchedule->click();
                     album.take(editor, u"reminder-" + pattern);
                     editor.cmd_OK->click();
                 });
    }
    list.lstv_MaintSched->Select(2);
    album.take(list, QStringLiteral("reminders"));
    main.mnu_ToolsReminderSchedule_Click();
    auto &schedule = Form<frm_Schedule>();
    schedule.cmd_Generate->click();
    album.take(schedule, QStringLiteral("schedule"));
    schedule.Print_Schedule();
    main.setPanel(QStringLiteral("Ready.")); // instead of the place of the last printout
    album.take(main, QStringLiteral("main-reminders"));
    schedule.parentWidget()->close();
    list.parentWidget()->close();
}
