// A keeper's work in the real windows, during which something else can happen: the main window or a child that shows
// another tank is activated, the clock passes midnight, another program deletes the row, or the file cannot be written.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "logic/logbook/LogKinds.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/MaskedBox.h"
#include "store/FaultVfs.h"
#include "store/StoreFixture.h"
#include "windows/AllWindows.h"
#include "windows/Hands.h"

enum Step { Nothing, MainActivated, ChildActivated, Midnight, RowDeleted, CannotWrite };

/// All rows of the file. A date that changed at midnight counts as the day before.
inline QString rowsOf(Database &database)
{
    QString text;
    for (const QString table : {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED", "CONFIG"}) {
        const auto rows = database.OpenRecordset("SELECT * FROM " + table + " ORDER BY rowid").rows();
        for (int row = 0; row < rows->count(); ++row)
            for (int c = 0; c < rows->columns(); ++c)
                text += (c == 0 ? '\n' + table + '|' : QString('|')) + rows->text(row, c);
    }
    return text.replace("03/15/2026", "03/14/2026");
}

/// A keeper with the tanks "Reef", "Same" and "Bowl". "Reef" and "Same" have entries at the same moments.
class Bench
{
public:
    /// `row` deletes a row as another program, for RowDeleted.
    explicit Bench(Step step = Nothing, QString row = {}) : m_step(step), m_row(std::move(row))
    {
        Database &file = *keeper.g().gDatabase;
        Database::Transaction whole(file);
        keeper.addTank("Reef", "r1", "3");
        keeper.addTank("Same", "Same", "2");
        keeper.addTank("Bowl", "b1", "1");
        for (const QString entry :
             {"WATERLOG (ph, tankname, logdate, logtime) VALUES (8",
              "LIVESTOCK (animalname, tankname, dateadded, timeadded) VALUES ('Tang'",
              "MAINTLOG (maintlogtask, mainttankname, maintlogdate, maintlogtime) VALUES ('Feed'"})
            for (const QString tank : {"r1", "Same"})
                for (const QString day : {"2026-03-01", "2026-03-12"})
                    file.Execute("INSERT INTO " + entry + ", ?, ?, '09:30:00')", {tank, day});
        file.Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                     "SchedRSubtype) VALUES ('Feed', '2026-01-01', '2027-01-01', 200, 0, 0)");
        whole.commit();
        keeper.doors.whileBoxIsUp = [this](const MsgBoxRequest &) { meanwhile(); };
    }
    ~Bench() { Database::setBusyTimeout(5000); }

    /// Starts the program, with the graph of "Reef" beside the logbook, which is at the first entry of "Same", if any.
    /// It does not wait long for a locked file.
    void start(LogTab tab)
    {
        Database::setBusyTimeout(10);
        keeper.restart();
        main = &keeper.startProgram();
        logbook = &hand::openLogbook(*main);
        hand::clickTank(*logbook, "Reef");
        hand::click<QToolButton>(*logbook, "graphentries");
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "Same");
        hand::clickTab(*logbook->tab_logtype, tab);
        if (list().Count() > 0)
            list().Select(1);
        keeper.told();
    }
    ListView &list() const { return static_cast<ListView &>(*logbook->tab_logtype->currentWidget()); }
    QString file() { return rowsOf(*keeper.g().gDatabase); }
    bool hasSteppedIn() const { return m_step == Nothing; }

    /// Presses a button of the logbook, which works on its own tank even if another is the current one.
    void push(const char *button)
    {
        if (m_step != Nothing)
            keeper.takeInHand("r1", "Reef", "3");
        hand::click<QToolButton>(*logbook, button);
    }
    /// Runs a command as a menu does: a failure is shown and not thrown.
    void run(void (frm_OMKMDIMain::*command)())
    {
        guarded([this, command] { (main->*command)(); })();
    }
    /// Fills the window that opens next, in which the chosen event happens first.
    template <class F> void inWindow(const std::function<void(F &)> &fill)
    {
        keeper.inNext<F>([this, fill](F &window) {
            meanwhile();
            fill(window);
        });
    }
    /// Adds or changes an entry. The number in the box differs from that of another second.
    template <class F> void enter(const char *button, const char *box)
    {
        inWindow<F>([this, box](F &window) {
            if constexpr (requires { window.lst_AnimalList; })
                window.lst_AnimalList->setEditText("Tang");
            if constexpr (requires { window.lst_mainttasklist; })
                window.lst_mainttasklist->setEditText("Feeding");
            control<MaskedBox>(window, box).setText(QString::number(keeper.doors.clock.time().second()));
            confirm(window, *window.cmd_OK);
        });
        push(button);
    }
    /// Describes the tank that the command opens. A new one gets a name that differs from that of another second.
    void describeTank(void (frm_OMKMDIMain::*command)())
    {
        inWindow<frm_TankAddNew>([this](frm_TankAddNew &window) {
            window.txt_long_desc->setText("of glass");
            if (window.txt_tankname->Text().isEmpty())
                window.txt_tankname->setText("New " + keeper.doors.clock.toString("hhmmss"));
            confirm(window, *window.cmd_OK);
        });
        run(command);
    }
    /// Presses OK, and again in the unchanged window as long as it is refused because the file cannot be written.
    void confirm(QWidget &window, QPushButton &ok)
    {
        const QPointer<QWidget> stands = &window;
        do
            ok.click();
        while (wasRefused() && stands && stands->isVisible());
        if (stands && stands->isVisible())
            stands->close();
    }
    /// Runs a command and answers its message box with OK, and again as long as it is refused.
    void answerOk(const std::function<void()> &command)
    {
        do {
            keeper.doors.answers = {MsgBoxAnswer::OK};
            command();
        } while (wasRefused());
    }

    FaultVfs faults; ///< made before the database is opened
    Keeper keeper;
    frm_OMKMDIMain *main = nullptr;
    frm_Waterlog *logbook = nullptr;
    QString expected; ///< if the row was deleted, the file without it

private:
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
        if (step == CannotWrite) {
            m_before = file();
            spoil();
        }
        QCoreApplication::processEvents();
    }
    /// Makes writing fail in the next way: the file is locked, or away, or the disk is broken or full from one of the
    /// first writes and syncs onward.
    void spoil()
    {
        if (m_way == 0)
            EXPECT_EQ(m_other.run("BEGIN IMMEDIATE"), "");
        else if (m_way == 1)
            EXPECT_TRUE(QFile::rename(keeper.databaseFile(), m_away));
        else
            faults.plan({m_way % 2 ? SQLITE_FULL : SQLITE_IOERR_WRITE, m_way / 2 - 1, true});
    }
    /// If the file could not be written, nothing may have changed, and there must have been a message. Mends the cause,
    /// lets the next way come, and returns true.
    bool wasRefused()
    {
        constexpr int ways = 14;
        if (m_before.isEmpty() || m_way == ways)
            return false;
        m_other.run("ROLLBACK");
        QFile::rename(m_away, keeper.databaseFile());
        faults.plan({});
        EXPECT_EQ(file(), m_before) << "way " << m_way;
        EXPECT_NE(keeper.told(), "0") << "way " << m_way;
        if (++m_way < ways)
            spoil();
        return true;
    }

    Step m_step;
    const QString m_row;
    const QString m_away = keeper.folder.filePath("away.MDB");
    QString m_before; ///< the file before it could not be written
    int m_way = 0;
    OtherProgram m_other{keeper.databaseFile()};
};

/// A piece of work.
struct Scene
{
    const char *name;
    LogTab tab;
    const char *row; ///< the statement that deletes its row; null if there is no row yet
    void (*play)(Bench &);
};

inline void PrintTo(const Scene &scene, std::ostream *out) { *out << scene.name; }

inline void deleteEntry(Bench &bench)
{
    bench.answerOk([&bench] { bench.push("deleteentries"); });
}

inline void moveAnimal(Bench &bench)
{
    bench.inWindow<frm_LivesMove>([&bench](frm_LivesMove &window) {
        window.lst_tanklist->setCurrentRow(0);
        bench.confirm(window, *window.cmd_ok);
    });
    bench.push("moveentries");
}

inline constexpr auto waterRow = "DELETE FROM WATERLOG WHERE tankname = 'Same' AND logdate = '2026-03-01'";
inline constexpr auto animalRow = "DELETE FROM LIVESTOCK WHERE tankname = 'Same' AND dateadded = '2026-03-01'";
inline constexpr auto workRow = "DELETE FROM MAINTLOG WHERE mainttankname = 'Same' AND maintlogdate = '2026-03-01'";
inline constexpr auto tankRow = "DELETE FROM TANKLST WHERE tankname = 'Same'";

/// The work in the logbook. The first three add an entry of each log, in the order of the tabs.
inline const Scene logbookScenes[] = {
    {"AddWater", WaterTab, nullptr, [](Bench &b) { b.enter<frm_WaterAddEdit>("addentries", "txt_nitrate"); }},
    {"AddAnimal", LivestockTab, nullptr, [](Bench &b) { b.enter<frm_LivesAddEdit>("addentries", "txt_quantity"); }},
    {"AddWork", MaintenanceTab, nullptr, [](Bench &b) { b.enter<frm_MaintAddEdit>("addentries", "txt_quantity"); }},
    {"ChangeWater", WaterTab, waterRow, [](Bench &b) { b.enter<frm_WaterAddEdit>("changeentries", "txt_nitrate"); }},
    {"ChangeAnimal", LivestockTab, animalRow,
     [](Bench &b) { b.enter<frm_LivesAddEdit>("changeentries", "txt_quantity"); }},
    {"ChangeWork", MaintenanceTab, workRow,
     [](Bench &b) { b.enter<frm_MaintAddEdit>("changeentries", "txt_quantity"); }},
    {"DeleteWater", WaterTab, waterRow, deleteEntry},
    {"DeleteAnimal", LivestockTab, animalRow, deleteEntry},
    {"DeleteWork", MaintenanceTab, workRow, deleteEntry},
    {"MoveAnimal", LivestockTab, animalRow, moveAnimal},
    {"AddTank", WaterTab, nullptr, [](Bench &b) { b.describeTank(&frm_OMKMDIMain::mnu_TankAddNew_Click); }},
    {"ChangeTank", WaterTab, tankRow, [](Bench &b) { b.describeTank(&frm_OMKMDIMain::mnu_TankProperties_Click); }},
    {"DeleteTank", WaterTab, nullptr,
     [](Bench &b) { b.answerOk([&b] { b.run(&frm_OMKMDIMain::mnu_TankDelete_Click); }); }},
};
