// What steps in while a window or a box is open: the main window is activated, or a child that shows another tank; the
// clock passes midnight; another program deletes the row, or holds the file. For each the same work must come out in
// the file as if nothing had happened, or be refused with a word about it and change nothing; no row of another tank is
// touched, and the list shows what is in the file.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "platform/controls/Guarded.h"
#include "store/StoreFixture.h"
#include "windows/common/frm_Caltool.h"
#include "windows/Desk.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

namespace {

enum Step { Nothing, MainActivated, ChildActivated, Midnight, RowDeleted, FileLocked };
constexpr const char *stepNames[] = {"Nothing",  "MainActivated", "ChildActivated",
                                     "Midnight", "RowDeleted",    "FileLocked"};

/// A file that is held is told soon. The time is taken over when the database is opened.
struct ShortWait
{
    ShortWait() { Database::setBusyTimeout(10); }
    ~ShortWait() { Database::setBusyTimeout(5000); }
};

/// The logbook on the tank "Same", and the graph beside it. The tank "Reef" has entries of the same moments.
class Bench : ShortWait, public Desk
{
public:
    using Desk::keeper, Desk::main, Desk::push;

    Bench(LogTab tab, Step step, QString row) : Desk(tab), m_step(step), m_row(std::move(row))
    {
        Database::Transaction whole(*keeper.g().gDatabase);
        for (const char *tank : {"r1", "Same"})
            for (const char *moment : {"2026-03-01 09:30:00", "2026-03-12 09:30:00"}) {
                addEntry(WaterTab, tank, moment, "ph, nitrate", "8, 1");
                addEntry(LivestockTab, tank, moment, "animalname, quantity", "'Tang', 1");
                addEntry(MaintenanceTab, tank, moment, "maintlogtask, maintlogqty", "'Feeding', 1");
            }
        for (const char *task : {"Feed", "Clean"})
            execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                    "SchedRSubtype, SchedEnglishDesc) VALUES (?, '2026-01-01', '2027-01-01', 200, 0, 0, 'Often.')",
                    {QString(task)});
        whole.commit();
        hand::clickTank(*logbook, "Reef");
        push("graphentries");
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "Same");
        hand::clickRow(list(), 1);
        keeper.told();
        keeper.doors.whileBoxIsUp = [this](const MsgBoxRequest &) { meanwhile(); };
    }
    void TestBody() override {}

    /// What steps in, once.
    void meanwhile()
    {
        switch (std::exchange(m_step, Nothing)) {
        case Nothing: return;
        case MainActivated:
            main->activateWindow();
            takeReefInHand();
            break;
        case ChildActivated: {
            auto &area = control<QMdiArea>(*main, "mdiArea");
            area.setActiveSubWindow(qobject_cast<QMdiSubWindow *>(Form<frm_WaterGraph>().parentWidget()));
            takeReefInHand();
            break;
        }
        case Midnight: keeper.doors.clock = keeper.doors.clock.addDays(1); break;
        case RowDeleted:
            ASSERT_EQ(m_other.run(m_row), "");
            expected = file();
            break;
        case FileLocked:
            m_before = file();
            ASSERT_EQ(m_other.run("BEGIN IMMEDIATE"), "");
            m_locked = true;
            break;
        }
        QCoreApplication::processEvents();
    }
    bool hasSteppedIn() const { return m_step == Nothing; }
    /// Presses OK; again, as the window stands, once a file that was held is free.
    void confirm(QWidget &window, QPushButton &ok)
    {
        const QPointer<QWidget> stands = &window;
        ok.click();
        if (release())
            ok.click();
        if (stands && stands->isVisible())
            stands->close();
    }
    /// True where the file was held: then nothing has changed, and that was told.
    bool release()
    {
        if (!std::exchange(m_locked, false))
            return false;
        EXPECT_EQ(file(), m_before);
        EXPECT_FALSE(keeper.doors.failures.empty() && keeper.doors.boxes.empty());
        m_other.run("ROLLBACK");
        keeper.told();
        return true;
    }
    template <class F> void inWindow(const std::function<void(F &)> &fill)
    {
        keeper.inNext<F>([this, fill](F &window) {
            meanwhile();
            fill(window);
        });
    }
    /// Runs a command whose box is answered with OK; again where the file was held.
    void answerOk(const std::function<void()> &command)
    {
        for (bool again = true; again; again = release()) {
            keeper.doors.answers = {MsgBoxAnswer::OK};
            command();
        }
    }
    void run(const std::function<void()> &command) { guarded(command)(); }

    /// All rows of the file; a day that midnight has changed counts as the one before.
    QString file()
    {
        QString text;
        for (const QString table : {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED", "CONFIG"}) {
            const auto rows = keeper.g().gDatabase->OpenRecordset("SELECT * FROM " + table + " ORDER BY rowid").rows();
            for (int row = 0; row < rows->count(); ++row) {
                text += table;
                for (int c = 0; c < rows->columns(); ++c)
                    text += '|' + rows->text(row, c);
                text += '\n';
            }
        }
        return text.replace("03/15/2026", "03/14/2026");
    }
    /// The list shows as many rows as the file has of the tank that is selected.
    void expectListToBeTrue(LogTab tab)
    {
        const char *const rows[] = {"WATERLOG WHERE tankname", "LIVESTOCK WHERE tankname",
                                    "MAINTLOG WHERE mainttankname"};
        const QString tank = logbook->TreeView1->currentItem()->data(0, Qt::UserRole).toString();
        EXPECT_EQ(list().Count(), keeper.count(QString("%1 = '%2'").arg(rows[tab], tank)));
    }

    QString expected; ///< where the row was deleted: the file without it

private:
    /// As a window does that shows another tank.
    void takeReefInHand()
    {
        keeper.g().gTankId = "r1";
        keeper.g().gTankName = "Reef";
        keeper.g().gTankWaterType = "3";
    }

    Step m_step;
    QString m_row;
    OtherProgram m_other{keeper.databaseFile()};
    QString m_before;
    bool m_locked = false;
};

struct Scene
{
    const char *name;
    LogTab tab;
    const char *row; ///< what another program deletes; null where nothing is there yet
    void (*play)(Bench &);
};

template <class F> void enter(Bench &desk, const char *button, const char *box)
{
    desk.inWindow<F>([&desk, box](F &window) {
        if constexpr (requires { window.lst_AnimalList; })
            window.lst_AnimalList->setEditText("Tang");
        if constexpr (requires { window.lst_mainttasklist; })
            window.lst_mainttasklist->setEditText("Feeding");
        control<MaskedBox>(window, box).setText("7");
        desk.confirm(window, *window.cmd_OK);
    });
    desk.push(button);
}

void nameTank(Bench &desk, const std::function<void()> &command)
{
    desk.inWindow<frm_TankAddNew>([&desk](frm_TankAddNew &window) {
        window.txt_long_desc->setText("of glass");
        if (window.txt_tankname->Text().isEmpty())
            window.txt_tankname->setText("Nano");
        desk.confirm(window, *window.cmd_OK);
    });
    desk.run(command);
}

void editReminder(Bench &desk, const std::function<QPushButton *(frm_Maintsched &)> &button)
{
    hand::press(Qt::Key_E, Qt::ControlModifier);
    auto &reminders = Form<frm_Maintsched>();
    hand::clickRow(*reminders.lstv_MaintSched, 1);
    desk.inWindow<frm_SchedNewAddEdit>([&desk](frm_SchedNewAddEdit &window) {
        window.txt_TaskDescription->setText("Feed more");
        desk.confirm(window, *window.cmd_OK);
    });
    mouse::click(button(reminders));
}

constexpr auto waterRow = "DELETE FROM WATERLOG WHERE tankname = 'Same' AND logdate = '2026-03-01'";
constexpr auto animalRow = "DELETE FROM LIVESTOCK WHERE tankname = 'Same' AND dateadded = '2026-03-01'";
constexpr auto workRow = "DELETE FROM MAINTLOG WHERE mainttankname = 'Same' AND maintlogdate = '2026-03-01'";
constexpr auto tankRow = "DELETE FROM TANKLST WHERE tankname = 'Same'";
constexpr auto reminderRow = "DELETE FROM MAINTSCHED WHERE SchedTask = 'Feed'"; // the first of the list

const Scene scenes[] = {
    {"AddWater", WaterTab, nullptr, [](Bench &d) { enter<frm_WaterAddEdit>(d, "addentries", "txt_nitrate"); }},
    {"ChangeWater", WaterTab, waterRow, [](Bench &d) { enter<frm_WaterAddEdit>(d, "changeentries", "txt_nitrate"); }},
    {"AddAnimal", LivestockTab, nullptr, [](Bench &d) { enter<frm_LivesAddEdit>(d, "addentries", "txt_quantity"); }},
    {"ChangeAnimal", LivestockTab, animalRow,
     [](Bench &d) { enter<frm_LivesAddEdit>(d, "changeentries", "txt_quantity"); }},
    {"AddWork", MaintenanceTab, nullptr, [](Bench &d) { enter<frm_MaintAddEdit>(d, "addentries", "txt_quantity"); }},
    {"ChangeWork", MaintenanceTab, workRow,
     [](Bench &d) { enter<frm_MaintAddEdit>(d, "changeentries", "txt_quantity"); }},
    {"DeleteWater", WaterTab, waterRow, [](Bench &d) { d.answerOk([&d] { d.push("deleteentries"); }); }},
    {"DeleteAnimal", LivestockTab, animalRow, [](Bench &d) { d.answerOk([&d] { d.push("deleteentries"); }); }},
    {"DeleteWork", MaintenanceTab, workRow, [](Bench &d) { d.answerOk([&d] { d.push("deleteentries"); }); }},
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
    {"AddTank", WaterTab, nullptr, [](Bench &d) { nameTank(d, [&d] { d.main->mnu_TankAddNew_Click(); }); }},
    {"ChangeTank", WaterTab, tankRow, [](Bench &d) { nameTank(d, [&d] { d.main->mnu_TankProperties_Click(); }); }},
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
    {"AddReminder", WaterTab, nullptr, [](Bench &d) { editReminder(d, [](auto &list) { return list.cmd_AddTask; }); }},
    {"ChangeReminder", WaterTab, reminderRow,
     [](Bench &d) { editReminder(d, [](auto &list) { return list.cmd_update_task; }); }},
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
         d.release();
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
    {
        Bench calm(scene.tab, Nothing, {});
        scene.play(calm);
        undisturbed = calm.file();
        calm.expectListToBeTrue(scene.tab);
    }
    for (const Step step : {MainActivated, ChildActivated, Midnight, RowDeleted, FileLocked}) {
        if (step == RowDeleted && !scene.row)
            continue;
        SCOPED_TRACE(stepNames[step]);
        Bench bench(scene.tab, step, scene.row);
        scene.play(bench);
        EXPECT_TRUE(bench.hasSteppedIn());
        EXPECT_EQ(bench.file(), step == RowDeleted ? bench.expected : undisturbed);
        if (step != RowDeleted)
            bench.expectListToBeTrue(scene.tab);
    }
}

INSTANTIATE_TEST_SUITE_P(Work, Meanwhile, testing::ValuesIn(scenes),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
