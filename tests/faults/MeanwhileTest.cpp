// What can happen while a window or a message box is open (see Bench.h). The file must then be the same as if nothing
// had happened, or the work must be refused with a message, change nothing, and succeed once the cause is gone. No row
// of another tank may change.
#include "Bench.h"

namespace {

void editReminder(Bench &bench, const char *button)
{
    hand::press(Qt::Key_E, Qt::ControlModifier);
    auto &reminders = Form<frm_Maintsched>();
    hand::clickRow(*reminders.lstv_MaintSched, 1);
    bench.inWindow<frm_SchedNewAddEdit>([&bench](frm_SchedNewAddEdit &window) {
        window.txt_TaskDescription->setText("Feed more");
        bench.confirm(window, *window.cmd_OK);
    });
    hand::click<QPushButton>(reminders, button);
}

/// Deletes "Reef", which the logbook does not show.
void deleteAnotherTank(Bench &bench)
{
    bench.answerOk([&bench] {
        Keeper::inNext<frm_TankMaint>([](frm_TankMaint &tanks) {
            tanks.lst_tanklist->setCurrentRow(1);
            mouse::click(tanks.cmd_DeleteTank);
            mouse::click(tanks.cmd_ok);
        });
        bench.run(&frm_OMKMDIMain::mnu_ToolsTanksetup_Click);
    });
}

constexpr auto reminderRow = "DELETE FROM MAINTSCHED WHERE SchedTask = 'Feed'";

const Scene otherScenes[] = {
    {"DeleteAnotherTank", WaterTab, nullptr, deleteAnotherTank},
    {"AddReminder", WaterTab, nullptr, [](Bench &bench) { editReminder(bench, "cmd_AddTask"); }},
    {"ChangeReminder", WaterTab, reminderRow, [](Bench &bench) { editReminder(bench, "cmd_update_task"); }},
};

class Meanwhile : public testing::TestWithParam<Scene>
{
};

TEST_P(Meanwhile, TheWorkComesOutAsIfNothingHadHappenedOrIsRefusedWhole)
{
    const Scene &scene = GetParam();
    QString undisturbed;
    for (const Step step : {Nothing, MainActivated, ChildActivated, Midnight, RowDeleted, CannotWrite}) {
        if (step == RowDeleted && !scene.row)
            continue;
        SCOPED_TRACE("step " + std::to_string(step));
        Bench bench(step, scene.row);
        bench.start(scene.tab);
        scene.play(bench);
        EXPECT_TRUE(bench.hasSteppedIn());
        const QString outcome = bench.file() + "\nThe list: " + hand::column(bench.list(), 1);
        if (step == Nothing)
            undisturbed = outcome;
        if (step == RowDeleted)
            EXPECT_EQ(bench.file(), bench.expected);
        else
            EXPECT_EQ(outcome, undisturbed);
    }
}

const auto nameOf = [](const auto &info) { return std::string(info.param.name); };
INSTANTIATE_TEST_SUITE_P(Logbook, Meanwhile, testing::ValuesIn(logbookScenes), nameOf);
INSTANTIATE_TEST_SUITE_P(Others, Meanwhile, testing::ValuesIn(otherScenes), nameOf);

/// Without the settings everything else works.
TEST(Settings, ThatCannotBeReadOrWrittenStopNoStart)
{
    Keeper keeper;
    ScriptedDoors doors(keeper.folder.path()); // a folder cannot serve as the file
    keeper.restart();
    hand::openLogbook(keeper.startProgram());
    EXPECT_TRUE(doors.failures.empty());
    EXPECT_TRUE(doors.told().contains("settings could not be written"));
}

} // namespace
