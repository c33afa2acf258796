// Plays a few scenes with a real mouse and keyboard, on a real X server with a window manager.
#include <QMdiArea>

#include "platform/desktop/DesktopDoors.h"
#include "RealHands.h"
#include "support/TestFiles.h"
#include "windows/Desk.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/tanks/frm_TankMaint.h"

/// The scripted doors, but with real message boxes.
class RealBoxes : public ScriptedDoors
{
public:
    using ScriptedDoors::ScriptedDoors;
    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override
    {
        boxes.push_back(request);
        return m_desktop.msgBox(request);
    }

private:
    DesktopDoors m_desktop;
};

/// The logbook at the tank "Reef". The tanks "Reef" and "Same" each have two water tests and an animal, at the same
/// moments, so that a command for the wrong tank would find an entry there.
class Desktop : public Desk
{
protected:
    explicit Desktop(LogTab tab = LivestockTab) : Desk(tab)
    {
        for (const char *tank : {"r1", "Same"}) {
            for (const char *day : {"2026-03-01", "2026-03-02"})
                addEntry(WaterTab, tank, QString(day) + " 09:30:00", "ph, temp",
                         QString(tank) == "Same" ? "7, 70" : "8, 80");
            addEntry(LivestockTab, tank, "2026-03-01 09:30:00", "animalname, quantity",
                     QString("'of %1', 1").arg(tank));
        }
        hand::clickTank(*logbook, "Reef");
    }
    QMdiSubWindow *front() const { return main->findChild<QMdiArea *>()->activeSubWindow(); }
    bool isChildInFront(const QWidget &child) const { return front() && front()->widget() == &child; }

    void chooseInMenu(QMenu &menu, MenuEntry &entry)
    {
        real::click(*main->menuBar(), main->menuBar()->actionGeometry(menu.menuAction()).center());
        EXPECT_TRUE(real::happens([&menu] { return menu.isVisible(); }));
        real::click(menu, menu.actionGeometry(&entry).center());
        EXPECT_TRUE(real::happens([&menu] { return !menu.isVisible(); }));
    }
    /// Opens the graph beside the logbook and chooses the tank "Same" in it. The graph is then in front.
    void graphAnotherTankBeside()
    {
        if (!graph) {
            pushReally("graphentries");
            EXPECT_TRUE(real::happens([] { return Forms::current().loaded<frm_WaterGraph>() != nullptr; }));
            graph = &Form<frm_WaterGraph>();
            EXPECT_TRUE(real::happens([this] { return isChildInFront(*graph); }));
            chooseInMenu(*main->mnu_Window, *main->mnu_WindowTileVertical);
        }
        real::click(*graph->tanklistbox);
        EXPECT_TRUE(real::happens([this] { return graph->tanklistbox->view()->isVisible(); }));
        real::press("End");
        real::press("Return");
        EXPECT_TRUE(real::happens([this] { return !graph->tanklistbox->view()->isVisible(); }));
        EXPECT_EQ(graph->tanklistbox->currentText(), "Same");
        EXPECT_TRUE(isChildInFront(*graph));
    }
    void pushReally(const char *button) { real::click(control<QToolButton>(*logbook, button)); }
    void selectRow(int row)
    {
        if (list().SelectedItem() != row) // a quick second click would be a double click
            real::clickItem(list(), list().model()->index(row - 1, 0));
        EXPECT_TRUE(real::happens([&] { return list().SelectedItem() == row; }));
    }
    QString animals()
    {
        return keeper.stored("group_concat(animalname || printf(' %d', quantity)) AS x FROM LIVESTOCK");
    }

    RealBoxes doors{keeper.folder.filePath("OMK.ini")};
    frm_WaterGraph *graph = nullptr;
};

TEST_F(Desktop, TheLogbooksButtonsWorkOnItsTankThoughTheGraphOfAnotherIsInFront)
{
    selectRow(1);
    graphAnotherTankBeside();
    bool done = false;
    real::inNext<frm_LivesAddEdit>([&](frm_LivesAddEdit &window) {
        EXPECT_EQ(window.lst_AnimalList->currentText(), "of r1");
        EXPECT_EQ(window.windowTitle(), " Livestock Detail for Reef");
        real::click(*window.txt_quantity);
        real::press("ctrl+a");
        real::write("5");
        real::press("Return");
        done = true;
    });
    pushReally("changeentries");
    EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
    EXPECT_EQ(animals(), "of r1 5,of Same 1");
    EXPECT_TRUE(isChildInFront(*logbook)) << "a press on its tool button brings the logbook to the front";

    selectRow(1);
    graphAnotherTankBeside();
    done = false;
    real::inNext<QMessageBox>([&](QMessageBox &box) {
        EXPECT_TRUE(box.text().contains("of r1") && box.text().contains("the Reef tank")) << box.text().toStdString();
        real::press("Return");
        done = true;
    });
    pushReally("deleteentries");
    EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
    EXPECT_EQ(animals(), "of Same 1");

    graphAnotherTankBeside();
    done = false;
    real::inNext<frm_LivesAddEdit>([&](frm_LivesAddEdit &window) {
        real::click(*window.lst_AnimalList->lineEdit());
        real::write("Crab");
        real::press("Tab"); // this also closes the list of suggestions
        real::press("alt+o");
        done = true;
    });
    pushReally("addentries");
    EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
    EXPECT_EQ(keeper.stored("group_concat(tankname || animalname) AS x FROM LIVESTOCK"), "Sameof Same,r1Crab");
}

TEST_F(Desktop, ABoxShowsAllItsTextAndBreaksNoPath)
{
    const QString sentence =
        "Another Ostrelmark has the logbook in this folder open, and that is told at some length:\n";
    for (const int folders : {1, 3, 4}) {
        const QString path = QString("/a folder with a name").repeated(folders);
        real::inNext<QMessageBox>([&](QMessageBox &box) {
            const auto &label = control<QLabel>(box, "qt_msgbox_label");
            EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(path)) << folders;
            EXPECT_GE(label.width(), label.wordWrap() ? 0 : label.sizeHint().width()) << folders;
            EXPECT_GE(label.height(), label.wordWrap() ? label.heightForWidth(label.width()) : 0) << folders;
            real::press("Return");
        });
        MsgBox(sentence + path);
    }
}

class DesktopTests : public Desktop
{
protected:
    DesktopTests() : Desktop(WaterTab) {}
};

TEST_F(DesktopTests, AnEntryIsMadeChangedAndDeletedByMenuKeysAndMouse)
{
    const auto &splitter = control<QSplitter>(*logbook, "sp_splitter");
    const int width = splitter.sizes().front();
    real::drag(*splitter.handle(1), QPoint(80, 0));
    EXPECT_TRUE(real::happens([&] { return std::abs(splitter.sizes().front() - width - 80) < 8; }))
        << width << ' ' << splitter.sizes().front();

    const auto found = logbook->TreeView1->findItems("Same", Qt::MatchExactly | Qt::MatchRecursive);
    real::click(*logbook->TreeView1->viewport(), logbook->TreeView1->visualItemRect(found.front()).center());
    EXPECT_TRUE(real::happens([&] { return keeper.g().gTankName == "Same"; }));

    bool done = false;
    real::inNext<frm_WaterAddEdit>([&](frm_WaterAddEdit &window) {
        real::click(control<QLineEdit>(window, "txt_ph"));
        real::press("ctrl+a");
        real::inNext<QMessageBox>([](QMessageBox &) { real::press("Escape"); });
        real::write("abc");
        real::press("Tab"); // the message comes when the focus leaves the box, and the focus returns
        EXPECT_TRUE(real::happens([&] { return doors.boxes.size() == 1 && isInFront(window); }));
        EXPECT_TRUE(control<QLineEdit>(window, "txt_ph").hasFocus());
        real::write("7.25");
        real::press("Return");
        done = true;
    });
    chooseInMenu(*main->mnu_File, *main->mnu_FileNew);
    EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
    EXPECT_EQ(keeper.count("WATERLOG WHERE tankname = 'Same' AND ph = 7.25 AND logdate = '2026-03-14'"), 1);

    for (const auto &[key, left] : {std::pair("Escape", 3), {"Return", 2}}) {
        selectRow(1);
        done = false;
        real::inNext<QMessageBox>([&, key = key](QMessageBox &) {
            real::press(key);
            done = true;
        });
        real::press("Delete");
        EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
        EXPECT_EQ(keeper.count("WATERLOG WHERE tankname = 'Same'"), left) << key;
    }
    EXPECT_EQ(keeper.count("WATERLOG WHERE tankname = 'r1'"), 2);
}

TEST(Program, AStartThatFailsShowsABoxSaysWhyOnStderrAndEndsWithOne)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"OM.MDB", "", "error '3343'"},               // is no database
        {"OM-2026.MDB", "", "error '3024'"},          // the folder was used before
        {"logbook", "/logbook/below", "error '76'"}}; // is no folder
    for (const auto &[file, below, number] : rows) {
        const QTemporaryDir folder;
        writeFile(folder.filePath(file), QByteArray(5000, 'x'));
        QProcess program;
        program.start(OMK_PROGRAM, {folder.path() + below});
        real::xdotool({"search", "--sync", "--onlyvisible", "--name", "^Ostrelmark$", "windowactivate", "--sync"});
        real::press("Return");
        EXPECT_TRUE(real::happens([&] { return program.state() == QProcess::NotRunning; }));
        EXPECT_EQ(program.exitCode(), 1);
        const QString told = program.readAllStandardError();
        EXPECT_TRUE(told.contains(number) && told.contains(folder.path())) << told.toStdString();
    }
}
