#include <QComboBox>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QToolBar>

#include "Hands.h"
#include "Keeper.h"
#include "logbook/frm_WaterAddEdit.h"
#include "shell/frm_OMKaboutbox.h"
#include "shell/frm_OMKOptions.h"
#include "tanks/frm_TankMaint.h"

namespace {

/// Records the windows in the order in which they come up.
class ShowOrder : public QObject
{
public:
    explicit ShowOrder(QStringList &names) : m_names(names) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(object) : nullptr;
        if (widget && widget->isWindow())
            m_names << object->objectName();
        return false;
    }

private:
    QStringList &m_names;
};

/// Toolbar buttons and menu entries that can be used to get at the tools of a tank.
QString toolsOf(frm_OMKMDIMain &main)
{
    QStringList names;
    for (const MenuEntry *entry : {&main.button("logbook"), main.mnu_ToolsLogbook, main.mnu_ToolsTanksetup})
        if (entry->isEnabled())
            names << entry->objectName();
    return names.join(u' ');
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void writeFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

TEST(MainWindow, StartsWithItsWindowsInOrderAndWarnsOfMissingTanksLast)
{
    Keeper keeper;
    QStringList shown;
    ShowOrder order(shown);
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &box) { shown << box.title; };
    auto &main = keeper.startProgram();
    EXPECT_EQ(shown.join(u'|'), "frm_OMKMDIMain|frm_OMKaboutbox|frm_OMKtod|No Tanks Set Up Yet");
    EXPECT_EQ(main.windowTitle(), " Ostrelmark 98");
    EXPECT_EQ(
        keeper.told(),
        "1|No Tanks Set Up Yet/48/You have no tanks set up in Ostrelmark for Windows. You must set-up at least one "
        "tank before you can use the logging, graphing, or data-import tools in Ostrelmark. Set up a tank by "
        "clicking on the \"Setup / Manage Tanks\" button on the main menu.");
    EXPECT_FALSE(keeper.g().gSplashMode);
    EXPECT_EQ(keeper.g().gGraphPageSize, 20);
    EXPECT_EQ(keeper.g().gNoTanks, "Y");
    EXPECT_EQ(toolsOf(main), "mnu_ToolsLogbook mnu_ToolsTanksetup");
    EXPECT_FALSE(main.button("graphing").isEnabled() || main.mnu_FilePrint->isEnabled());
    for (const QMenu *popup : {main.mnu_tankPopup, main.mnu_LogPopup, main.mnu_GraphPopup})
        EXPECT_FALSE(main.menuBar()->actions().contains(popup->menuAction()));
}

TEST(MainWindow, LogbookButtonAndTheOpenLogbookFollowTheTankListWithoutARestart)
{
    Keeper keeper;
    auto &main = keeper.startProgram();
    const auto setUpTanks = [&] {
        keeper.inNext<frm_TankMaint>([](frm_TankMaint &) { hand::press(Qt::Key_Escape); });
        hand::click<QToolButton>(main, "tanksetup");
        EXPECT_TRUE(isInFront(main));
    };
    keeper.told();
    keeper.addTank("Reef", "1");
    setUpTanks();
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(keeper.g().gNoTanks, "N");
    hand::click<QToolButton>(main, "logbook");
    auto &logbook = Form<frm_Waterlog>();
    hand::clickTank(logbook, "Reef");
    keeper.g().gDatabase->Execute("DELETE FROM TANKLST");
    setUpTanks();
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/"));
    EXPECT_EQ(toolsOf(main), "mnu_ToolsLogbook mnu_ToolsTanksetup");
    EXPECT_FALSE(main.mnu_FileNew->isEnabled()) << "the open logbook has let go of the tank";
    EXPECT_EQ(logbook.TreeView1->topLevelItem(0)->childCount(), 0);
}

TEST(MainWindow, TipSettingIsReadAtTheStart)
{
    const struct
    {
        const char *stored, *after; ///< null: none
        bool before, shows;
        int tips;
    } rows[] = {
        {nullptr, "Yes", false, true, 1},  {"Not Found", "Yes", false, true, 1},
        {"yes", "yes", false, true, 1},    {"No", "No", true, false, 0},
        {"eLSE", "Yes", false, true, 1},   {"maybe", "maybe", false, false, 0},
        {"maybe", "maybe", true, true, 0}, {"", "", true, true, 0},
    };
    Keeper keeper;
    keeper.addTank("Reef", "1");
    for (const auto &row : rows) {
        SCOPED_TRACE(row.stored ? row.stored : "(none)");
        keeper.restart();
        if (row.stored)
            SaveSetting("Show_Tips", row.stored);
        keeper.g().gShowTips = row.before;
        keeper.startProgram();
        EXPECT_EQ(keeper.g().gShowTips, row.shows);
        EXPECT_EQ(std::exchange(keeper.tipsAtStart, 0), row.tips);
        EXPECT_EQ(keeper.setting("Show_Tips"), row.after);
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST(MainWindow, AFileThatCannotBeUsedStopsTheStartAndStaysAsItIs)
{
    const struct
    {
        const char *name;
        void (*spoil)(Keeper &);
        Failure failure;
    } rows[] = {
        {"missing", [](Keeper &keeper) { QFile::remove(keeper.databaseFile()); }, Failure::CouldNotFindFile},
        {"no database", [](Keeper &keeper) { writeFile(keeper.databaseFile(), QByteArray(5000, 'x')); },
         Failure::UnrecognizedFormat},
        {"empty", [](Keeper &keeper) { writeFile(keeper.databaseFile(), ""); }, Failure::UnrecognizedFormat},
        {"damaged",
         [](Keeper &keeper) {
             writeFile(keeper.databaseFile(), contentOf(keeper.databaseFile()).left(100) + QByteArray(9000, 'x'));
         },
         Failure::UnrecognizedFormat},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Keeper keeper;
        keeper.g().gDatabase.reset();
        row.spoil(keeper);
        const QByteArray before = contentOf(keeper.databaseFile());
        QStringList shown;
        ShowOrder order(shown);
        try {
            Form<frm_OMKMDIMain>().MDIForm_Load();
            ADD_FAILURE() << "It started.";
        } catch (const RuntimeFailure &failure) {
            EXPECT_EQ(failure.number(), row.failure);
            EXPECT_TRUE(failure.description().contains("OM.MDB")) << failure.what();
        }
        EXPECT_EQ(shown.join(u'|'), "");
        EXPECT_EQ(keeper.told(), "0");
        keeper.g().gDatabase.reset();
        EXPECT_EQ(contentOf(keeper.databaseFile()), before);
        EXPECT_EQ(keeper.setting("Show_Tips"), "(none)");
    }
}

TEST(MainWindow, MenusOfViewAndHelpDoWhatTheySay)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    for (const auto &[entry, bar] : {std::pair<const char *, QWidget *>("mnu_ViewToolbar", main.Toolbar1),
                                     std::pair<const char *, QWidget *>("mnu_ViewStatusbar", main.statusBar())})
        for (const bool on : {false, true}) {
            hand::choose(main, *main.mnu_View, entry);
            EXPECT_EQ(bar->isVisible(), on) << entry;
            EXPECT_EQ(control<QAction>(main, entry).isChecked(), on) << entry;
            EXPECT_TRUE(main.cbo_Reminders->isVisible());
        }
    for (const char *entry : {"mnu_HelpContents", "mnu_HelpSearch"}) {
        hand::choose(main, *main.mnu_Help, entry);
        EXPECT_EQ(keeper.told(),
                  "0| Ostrelmark 98/64/Unable to display Help Contents. There is no Help associated with "
                  "this project.");
    }
    keeper.inNext<frm_OMKaboutbox>([](frm_OMKaboutbox &box) { mouse::click(&box); });
    hand::choose(main, *main.mnu_Help, "mnu_HelpAbout");
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &options) {
        EXPECT_EQ(options.SSTab1->currentIndex(), 0);
        hand::press(Qt::Key_Escape);
    });
    hand::choose(main, *main.mnu_View, "mnu_ViewOptions");
    EXPECT_TRUE(isInFront(main));
}

TEST(MainWindow, RemindersAreForReadingOnly)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    EXPECT_EQ(main.cbo_Reminders->currentText(), "(No Reminders Available)");
    main.cbo_Reminders->addItems({"second", "third"});
    main.cbo_Reminders->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_T}) {
        hand::press(key);
        EXPECT_EQ(main.cbo_Reminders->currentIndex(), 0);
    }
    for (const int width : {1400, 1000}) { // it stays at the right end
        main.resize(width, 700);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QPoint right = main.cbo_Reminders->mapTo(&main, main.cbo_Reminders->rect().topRight());
            return main.width() - right.x() < 12 && main.width() == width;
        }));
    }
}

TEST(MainWindow, ChildrenAreListedBroughtForwardAndArranged)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    auto &logbook = hand::openLogbook(main);
    auto &other = Form<OtherChild>();
    main.ShowChild(other);
    auto &area = control<QMdiArea>(main, "mdiArea");
    const auto front = [&] { return area.activeSubWindow()->widget(); };
    EXPECT_EQ(front(), &other);
    EXPECT_EQ(&hand::openLogbook(main), &logbook);
    EXPECT_EQ(front(), &logbook);
    EXPECT_EQ(area.subWindowList().size(), 2);

    const auto fromTheList = [&](const QString &text) {
        mouse::click(main.menuBar(), main.menuBar()->actionGeometry(main.mnu_Window->menuAction()).center());
        for (QAction *action : main.mnu_Window->actions())
            if (action->text() == text)
                return mouse::click(main.mnu_Window, main.mnu_Window->actionGeometry(action).center());
        ADD_FAILURE() << text.toStdString() << " is not in the list.";
    };
    fromTheList("&2 Other");
    EXPECT_EQ(front(), &other);
    fromTheList("&1 Logbook");
    EXPECT_EQ(front(), &logbook);

    QWidget &one = *logbook.parentWidget(), &two = *other.parentWidget();
    for (const auto &[entry, fullWidth] :
         {std::pair("mnu_WindowTileHorizontal", true), {"mnu_WindowTileVertical", false}}) {
        hand::choose(main, *main.mnu_Window, entry);
        const QRect room(QPoint(), area.viewport()->size());
        EXPECT_TRUE(one.geometry().intersected(two.geometry()).isEmpty()) << entry;
        EXPECT_EQ(one.geometry().united(two.geometry()), room) << entry;
        EXPECT_EQ(one.width() == room.width(), fullWidth);
        EXPECT_EQ(one.size(), two.size());
    }
    hand::choose(main, *main.mnu_Window, "mnu_WindowCascade");
    EXPECT_TRUE(one.geometry().intersects(two.geometry()) && one.pos() != two.pos());
    one.showMinimized();
    hand::choose(main, *main.mnu_Window, "mnu_WindowArrangeIcons");
    EXPECT_EQ(one.geometry().bottomLeft(), area.viewport()->rect().bottomLeft());
    hand::openLogbook(main);
    EXPECT_FALSE(one.isMinimized());

    two.close();
    EXPECT_FALSE(Forms::current().loaded<OtherChild>());
    EXPECT_TRUE(main.isVisible());
}

TEST(MainWindow, AnotherChildTakesTheLogCommandsAndADialogDoesNot)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    auto &logbook = hand::openLogbook(main);
    hand::clickTank(logbook, "Reef");
    const auto canAdd = [&] { return main.mnu_FileNew->isEnabled() && main.mnu_FileOpen->isEnabled(); };
    keeper.inNext<frm_WaterAddEdit>([&](frm_WaterAddEdit &) {
        EXPECT_TRUE(canAdd());
        EXPECT_FALSE(main.mnu_FilePrint->isEnabled());
        EXPECT_EQ(main.mnu_FilePrint->text(), "&Print");
        hand::press(Qt::Key_Escape);
    });
    hand::press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(isInFront(main));
    EXPECT_TRUE(canAdd() && main.mnu_FilePrint->isEnabled());
    EXPECT_EQ(main.mnu_FilePrint->text(), "&Print Entries...");

    QWidget otherProgram;
    otherProgram.show();
    otherProgram.activateWindow();
    EXPECT_TRUE(isInFront(otherProgram));
    EXPECT_TRUE(canAdd());
    main.activateWindow();
    EXPECT_TRUE(isInFront(main));
    main.ShowChild(Form<OtherChild>());
    EXPECT_FALSE(main.mnu_FileNew->isEnabled() || main.mnu_FileOpen->isEnabled() || main.mnu_FileDelete->isEnabled());
    hand::openLogbook(main);
    EXPECT_TRUE(canAdd());
    EXPECT_EQ(logbook.TreeView1->currentItem()->text(0), "Reef") << "only the first activation builds the tree";
}

TEST(MainWindow, ClosingItClosesTheChildrenWhichStoreWhatTheyKeep)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    for (const bool byMenu : {true, false}) {
        auto &main = keeper.startProgram();
        hand::openLogbook(main);
        main.ShowChild(Form<OtherChild>());
        SaveSetting("WQ_Sort", "overwritten");
        if (byMenu)
            hand::choose(main, *main.mnu_File, "mnu_Exit");
        else
            main.close();
        EXPECT_FALSE(main.isVisible());
        EXPECT_EQ(keeper.setting("WQ_Sort"), byMenu ? "1" : "overwritten at close");
        EXPECT_FALSE(Forms::current().loaded<frm_Waterlog>() || Forms::current().loaded<OtherChild>() ||
                     Forms::current().loaded<frm_OMKOptions>());
        SaveSetting("WQ_Sort", "overwritten at close");
        keeper.restart();
    }
}
