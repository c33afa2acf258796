// Plays a few scenes with a real mouse and keyboard, on a real X server with a window manager.
#include <QMdiArea>

#include "platform/desktop/DesktopDoors.h"
#include "RealHands.h"
#include "support/TestFiles.h"
#include "windows/Desk.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"

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

/// The logbook at the tank "Reef". The tanks "Reef" and "Same" each have an animal, at the same moment, so that a
/// command for the wrong tank would find an entry there.
class Desktop : public Desk
{
protected:
    Desktop() : Desk(LivestockTab)
    {
        for (const char *tank : {"r1", "Same"}) {
            addEntry(LivestockTab, tank, "2026-03-01 09:30:00", "animalname, quantity",
                     QString("'of %1', 1").arg(tank));
            for (const char *moment : {"2026-03-01 09:30:00", "2026-03-02 09:30:00"}) // enough for a graph
                addEntry(WaterTab, tank, moment, "ph", "8");
        }
        hand::clickTank(*logbook, "Reef");
    }
    bool isChildInFront(const QWidget &child) const
    {
        return main->findChild<QMdiArea *>()->activeSubWindow() == child.parentWidget();
    }

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
    /// Does something in the window of that type that `open` opens, and waits until the main window is in front again.
    template <class T> void inWindow(const std::function<void()> &open, const std::function<void(T &)> &action)
    {
        bool done = false;
        real::inNext<T>([&](T &window) {
            action(window);
            done = true;
        });
        open();
        EXPECT_TRUE(real::happens([&] { return done && isInFront(*main); }));
    }
    void selectFirstRow()
    {
        if (list().SelectedItem() != 1) // a quick second click would be a double click
            real::click(*list().viewport(), list().visualRect(list().model()->index(0, 0)).center());
        EXPECT_TRUE(real::happens([&] { return list().SelectedItem() == 1; }));
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
    selectFirstRow();
    graphAnotherTankBeside();
    const auto change = [](frm_LivesAddEdit &window) {
        EXPECT_EQ(window.lst_AnimalList->currentText(), "of r1");
        EXPECT_EQ(window.windowTitle(), " Livestock Detail for Reef");
        real::click(*window.txt_quantity);
        real::press("ctrl+a");
        real::write("5");
        real::press("Return");
    };
    inWindow<frm_LivesAddEdit>([this] { pushReally("changeentries"); }, change);
    EXPECT_EQ(animals(), "of r1 5,of Same 1");
    EXPECT_TRUE(isChildInFront(*logbook)) << "a press on its tool button brings the logbook to the front";

    selectFirstRow();
    graphAnotherTankBeside();
    const auto confirm = [](QMessageBox &box) {
        EXPECT_TRUE(box.text().contains("of r1") && box.text().contains("the Reef tank")) << box.text().toStdString();
        real::press("Return");
    };
    inWindow<QMessageBox>([this] { pushReally("deleteentries"); }, confirm);
    EXPECT_EQ(animals(), "of Same 1");
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

TEST_F(Desktop, AnEntryIsMadeByMenuKeysAndMouse)
{
    hand::clickTab(*logbook->tab_logtype, WaterTab);
    const auto found = logbook->TreeView1->findItems("Same", Qt::MatchExactly | Qt::MatchRecursive);
    real::click(*logbook->TreeView1->viewport(), logbook->TreeView1->visualItemRect(found.front()).center());
    EXPECT_TRUE(real::happens([&] { return keeper.g().gTankName == "Same"; }));

    const auto enter = [this](frm_WaterAddEdit &window) {
        real::click(control<QLineEdit>(window, "txt_ph"));
        real::press("ctrl+a");
        real::inNext<QMessageBox>([](QMessageBox &) { real::press("Escape"); });
        real::write("abc");
        real::press("Tab"); // the message comes when the focus leaves the box, and the focus returns
        EXPECT_TRUE(real::happens([&] { return doors.boxes.size() == 1 && isInFront(window); }));
        EXPECT_TRUE(control<QLineEdit>(window, "txt_ph").hasFocus());
        real::write("7.25");
        real::press("Return");
    };
    inWindow<frm_WaterAddEdit>([this] { chooseInMenu(*main->mnu_File, *main->mnu_FileNew); }, enter);
    EXPECT_EQ(keeper.count("WATERLOG WHERE tankname = 'Same' AND ph = 7.25 AND logdate = '2026-03-14'"), 1);
}

TEST(Program, AStartThatFailsShowsABoxSaysWhyOnStderrAndEndsWithOne)
{
    for (const auto &[file, below, number] : {std::tuple("OM.MDB", "", "error '3343'"), // is no database
                                              {"OM-2026.MDB", "", "error '3024'"},      // the folder was used before
                                              {"logbook", "/logbook/below", "error '76'"}}) { // is no folder
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
