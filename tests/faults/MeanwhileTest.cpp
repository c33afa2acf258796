// What can happen while a window or a message box is open: the main window or a child that shows another tank is
// activated, the clock passes midnight, or another program deletes the row or locks the file. In each case the file
// must be the same as if nothing had happened, or the work must be refused with a message and change nothing. No row of
// another tank may change, and the list must show what is in the file.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "platform/controls/Guarded.h"
#include "store/StoreFixture.h"
#include "windows/AllWindows.h"
#include "windows/Desk.h"

namespace {

enum Step { Nothing, MainActivated, ChildActivated, Midnight, RowDeleted, FileLocked };
constexpr const char *stepNames[] = {"Nothing",  "MainActivated", "ChildActivated",
                                     "Midnight", "RowDeleted",    "FileLocked"};

/// Makes a locked file fail soon. The time takes effect when the database is opened.
struct ShortWait
{
    ShortWait() { Database::setBusyTimeout(10); }
    ~ShortWait() { Database::setBusyTimeout(5000); }
};

/// The logbook at the tank "Same", with the graph beside it. The tank "Reef" has entries at the same moments.
class Bench : ShortWait, public Desk
{
public:
    using Desk::keeper, Desk::main;

    explicit Bench(LogTab tab, Step step = Nothing, QString row = {}) : Desk(tab), m_step(step), m_row(std::move(row))
    {
        Database::Transaction whole(*keeper.g().gDatabase);
        for (const char *tank : {"r1", "Same"})
            for (const char *moment : {"2026-03-01 09:30:00", "2026-03-12 09:30:00"}) {
                addEntry(WaterTab, tank, moment, "ph, nitrate", "8, 1");
                addEntry(LivestockTab, tank, moment, "animalname, quantity", "'Tang', 1");
                addEntry(MaintenanceTab, tank, moment, "maintlogtask, maintlogqty", "'Feeding', 1");
            }
        for (const char *task : {"Feed", "Clean"})
            addReminder(task, "2026-01-01", "2027-01-01");
        whole.commit();
        hand::clickTank(*logbook, "Reef");
        Desk::push("graphentries");
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "Same");
        hand::clickRow(list(), 1);
        keeper.told();
        keeper.doors.whileBoxIsUp = [this](const MsgBoxRequest &) { meanwhile(); };
    }
    void TestBody() override {}
    /// Presses a button of the logbook, which works on its own tank even if another is the current one.
    void push(const char *button)
    {
        if (m_step != Nothing)
            keeper.takeInHand("r1", "Reef", "3");
        Desk::push(button);
    }

    /// Lets the chosen event happen, once.
    void meanwhile()
    {
        const Step step = std::exchange(m_step, Nothing);
        if (step == Midnight)
            keeper.doors.clock = keeper.doors.clock.addDays(1);
        if (step == MainActivated)
            main->activateWindow();
        if (step == ChildActivated)
            control<QMdiArea>(*main, "mdiArea")
                .setActiveSubWindow(qobject_cast<QMdiSubWindow *>(Form<frm_WaterGraph>().parentWidget()));
        if (step == MainActivated || step == ChildActivated)
            keeper.takeInHand("r1", "Reef", "3");
        if (step == RowDeleted) {
            ASSERT_EQ(m_other.run(m_row), "");
            expected = file();
        }
        if (step == FileLocked) {
            m_before = file();
            m_locked = m_other.run("BEGIN IMMEDIATE").isEmpty();
            EXPECT_TRUE(m_locked);
        }
        QCoreApplication::processEvents();
    }
    bool hasSteppedIn() const { return m_step == Nothing; }
    /// Presses OK. If the file was locked, presses OK again in the unchanged window once it is free.
    void confirm(QWidget &window, QPushButton &ok)
    {
        const QPointer<QWidget> stands = &window;
        do
            ok.click();
        while (wasRefused() && stands && stands->isVisible());
        if (stands && stands->isVisible())
            stands->close();
    }
    /// Runs a command and answers its message box with OK. If the file was locked, runs it again.
    void answerOk(const std::function<void()> &command)
    {
        do {
            keeper.doors.answers = {MsgBoxAnswer::OK};
            command();
        } while (wasRefused());
    }
    /// Unlocks the file. Returns true if it was locked; then nothing may have changed, and there must have been a
    /// message.
    bool wasRefused()
    {
        if (!std::exchange(m_locked, false))
            return false;
        EXPECT_EQ(file(), m_before);
        EXPECT_NE(keeper.told(), "0");
        m_other.run("ROLLBACK");
        return true;
    }
    template <class F> void inWindow(const std::function<void(F &)> &fill)
    {
        keeper.inNext<F>([this, fill](F &window) {
            meanwhile();
            fill(window);
        });
    }
    void run(const std::function<void()> &command) { guarded(command)(); }

    /// All rows of the file. A date that changed at midnight counts as the day before.
    QString file()
    {
        QString text;
        for (const QString table : {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED", "CONFIG"}) {
            const auto rows = keeper.g().gDatabase->OpenRecordset("SELECT * FROM " + table + " ORDER BY rowid").rows();
            for (int row = 0; row < rows->count(); ++row)
                for (int c = 0; c < rows->columns(); ++c)
                    text += (c == 0 ? '\n' + table + '|' : QString('|')) + rows->text(row, c);
        }
        return text.replace("03/15/2026", "03/14/2026");
    }
    /// Expects as many rows in the list as the file has for the selected tank.
    void expectListToBeTrue(LogTab tab)
    {
        const char *const rows[] = {"WATERLOG WHERE tankname", "LIVESTOCK WHERE tankname",
                                    "MAINTLOG WHERE mainttankname"};
        const QString tank = logbook->TreeView1->currentItem()->data(0, Qt::UserRole).toString();
        EXPECT_EQ(list().Count(), keeper.count(QString("%1 = '%2'").arg(rows[tab], tank)));
    }

    QString expected; ///< if the row was deleted, the file without it

private:
    Step m_step;
    QString m_row, m_before;
    OtherProgram m_other{keeper.databaseFile()};
    bool m_locked = false;
};

using Play = std::function<void(Bench &)>;

struct Scene
{
    const char *name;
    LogTab tab;
    const char *row; ///< the statement that deletes the row; null if there is no row yet
    Play play;
};

template <class F> Play enter(const char *button, const char *box)
{
    return [=](Bench &desk) {
        desk.inWindow<F>([&desk, box](F &window) {
            if constexpr (requires { window.lst_AnimalList; })
                window.lst_AnimalList->setEditText("Tang");
            if constexpr (requires { window.lst_mainttasklist; })
                window.lst_mainttasklist->setEditText("Feeding");
            control<MaskedBox>(window, box).setText("7");
            desk.confirm(window, *window.cmd_OK);
        });
        desk.push(button);
    };
}

void deleteEntry(Bench &desk)
{
    desk.answerOk([&desk] { desk.push("deleteentries"); });
}

Play nameTank(void (*command)(frm_OMKMDIMain &))
{
    return [command](Bench &desk) {
        desk.inWindow<frm_TankAddNew>([&desk](frm_TankAddNew &window) {
            window.txt_long_desc->setText("of glass");
            if (window.txt_tankname->Text().isEmpty())
                window.txt_tankname->setText("Nano");
            desk.confirm(window, *window.cmd_OK);
        });
        desk.run([main = desk.main, command] { command(*main); });
    };
}

Play editReminder(QPushButton *frm_Maintsched::*button)
{
    return [button](Bench &desk) {
        hand::press(Qt::Key_E, Qt::ControlModifier);
        auto &reminders = Form<frm_Maintsched>();
        hand::clickRow(*reminders.lstv_MaintSched, 1);
        desk.inWindow<frm_SchedNewAddEdit>([&desk](frm_SchedNewAddEdit &window) {
            window.txt_TaskDescription->setText("Feed more");
            desk.confirm(window, *window.cmd_OK);
        });
        mouse::click(reminders.*button);
    };
}

constexpr auto waterRow = "DELETE FROM WATERLOG WHERE tankname = 'Same' AND logdate = '2026-03-01'";
constexpr auto animalRow = "DELETE FROM LIVESTOCK WHERE tankname = 'Same' AND dateadded = '2026-03-01'";
constexpr auto workRow = "DELETE FROM MAINTLOG WHERE mainttankname = 'Same' AND maintlogdate = '2026-03-01'";
constexpr auto tankRow = "DELETE FROM TANKLST WHERE tankname = 'Same'";
constexpr auto reminderRow = "DELETE FROM MAINTSCHED WHERE SchedTask = 'Feed'"; // the first of the list

const Scene scenes[] = {
    {"AddWater", WaterTab, nullptr, enter<frm_WaterAddEdit>("addentries", "txt_nitrate")},
    {"ChangeWater", WaterTab, waterRow, enter<frm_WaterAddEdit>("changeentries", "txt_nitrate")},
    {"AddAnimal", LivestockTab, nullptr, enter<frm_LivesAddEdit>("addentries", "txt_quantity")},
    {"ChangeAnimal", LivestockTab, animalRow, enter<frm_LivesAddEdit>("changeentries", "txt_quantity")},
    {"AddWork", MaintenanceTab, nullptr, enter<frm_MaintAddEdit>("addentries", "txt_quantity")},
    {"ChangeWork", MaintenanceTab, workRow, enter<frm_MaintAddEdit>("changeentries", "txt_quantity")},
    {"DeleteWater", WaterTab, waterRow, deleteEntry},
    {"DeleteAnimal", LivestockTab, animalRow, deleteEntry},
    {"DeleteWork", MaintenanceTab, workRow, deleteEntry},
    {"MoveAnimal", LivestockTab, animalRow,
     [](Bench &d) {
         d.inWindow<frm_LivesMove>([&d](frm_LivesMove &window) {
             window.lst_tanklist->setCurrentItem(window.lst_tanklist->findItems("Bowl", Qt::MatchExactly).at(0));
             d.confirm(window, *window.cmd_ok);
         });
         d.push("moveentries");
     }},
    {"CalendarOverWater", WaterTab, nullptr,
     [](Bench &d) {
         d.keeper.inNext<frm_WaterAddEdit>([&d](frm_WaterAddEdit &window) {
             d.inWindow<frm_Caltool>([](frm_Caltool &calendar) { calendar.close(); });
             mouse::click(window.cmd_Caldate);
             d.confirm(window, *window.cmd_OK);
         });
         d.push("addentries");
     }},
    {"AddTank", WaterTab, nullptr, nameTank([](frm_OMKMDIMain &main) { main.mnu_TankAddNew_Click(); })},
    {"ChangeTank", WaterTab, tankRow, nameTank([](frm_OMKMDIMain &main) { main.mnu_TankProperties_Click(); })},
    {"DeleteTank", WaterTab, nullptr,
     [](Bench &d) { d.answerOk([&d] { d.run([&d] { d.main->mnu_TankDelete_Click(); }); }); }},
    {"DeleteAnotherTank", WaterTab, nullptr,
     [](Bench &d) {
         d.answerOk([&d] {
             Keeper::inNext<frm_TankMaint>([](frm_TankMaint &tanks) {
                 tanks.lst_tanklist->setCurrentItem(tanks.lst_tanklist->findItems("Reef", Qt::MatchExactly).at(0));
                 mouse::click(tanks.cmd_DeleteTank);
                 mouse::click(tanks.cmd_ok);
             });
             d.run([&d] { d.main->mnu_ToolsTanksetup_Click(); });
         });
     }},
    {"AddReminder", WaterTab, nullptr, editReminder(&frm_Maintsched::cmd_AddTask)},
    {"ChangeReminder", WaterTab, reminderRow, editReminder(&frm_Maintsched::cmd_update_task)},
    {"DeleteReminder", WaterTab, reminderRow,
     [](Bench &d) {
         hand::press(Qt::Key_E, Qt::ControlModifier);
         d.answerOk([] {
             auto &reminders = Form<frm_Maintsched>();
             hand::clickRow(*reminders.lstv_MaintSched, 1);
             mouse::click(reminders.cmd_DeleteTask);
         });
     }},
    {"Options", WaterTab, nullptr,
     [](Bench &d) {
         d.inWindow<frm_OMKOptions>([&d](frm_OMKOptions &window) {
             window.txt_username1->setText("Iron");
             d.confirm(window, *window.cmdOK);
         });
         d.run([&d] { d.main->mnu_ViewOptions_Click(); });
     }},
    {"PrintLog", WaterTab, nullptr,
     [](Bench &d) {
         d.keeper.doors.printers = {PrintDialogAnswer{1}};
         d.inWindow<frm_OMKLogPrint>([](frm_OMKLogPrint &window) { mouse::click(window.cmd_ok); });
         d.push("printentries");
         ASSERT_EQ(d.keeper.doors.documents.size(), 1u);
         const PrintedPage &page = d.keeper.doors.documents[0].pages.at(0);
         EXPECT_TRUE(page.find("Same") && !page.find("Reef"));
     }},
    {"Backup", WaterTab, nullptr,
     [](Bench &d) {
         const QString copy = d.keeper.folder.filePath("copy.MDB");
         d.keeper.doors.files = {copy};
         d.run([&d] { d.main->mnu_FileBackup_Click(); });
         d.wasRefused();
         EXPECT_TRUE(QFile::exists(copy));
     }},
};

void PrintTo(const Scene &scene, std::ostream *out) { *out << scene.name; }

class Meanwhile : public testing::TestWithParam<Scene>
{
};

TEST_P(Meanwhile, TheWorkComesOutAsIfNothingHadHappenedOrIsRefusedWhole)
{
    const Scene &scene = GetParam();
    QString undisturbed;
    for (const Step step : {Nothing, MainActivated, ChildActivated, Midnight, RowDeleted, FileLocked}) {
        if (step == RowDeleted && !scene.row)
            continue;
        SCOPED_TRACE(stepNames[step]);
        Bench bench(scene.tab, step, scene.row);
        scene.play(bench);
        EXPECT_TRUE(bench.hasSteppedIn());
        if (step == Nothing)
            undisturbed = bench.file();
        EXPECT_EQ(bench.file(), step == RowDeleted ? bench.expected : undisturbed);
        if (step != RowDeleted)
            bench.expectListToBeTrue(scene.tab);
    }
}

INSTANTIATE_TEST_SUITE_P(Work, Meanwhile, testing::ValuesIn(scenes),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
