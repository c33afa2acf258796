#include <QFile>

#include "Hands.h"
#include "Keeper.h"
#include "logbook/frm_WaterAddEdit.h"
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

} // namespace

TEST(MainWindow, StartsWithItsWindowsInOrderAndWarnsOfMissingTanksLast)
{
    Keeper keeper;
    QStringList shown;
    ShowOrder order(shown);
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &box) { shown << box.title; };
    auto &main = keeper.startProgram();
    EXPECT_EQ(shown.join(u'|'), "frm_OMKMDIMain|frm_OMKaboutbox|frm_OMKtod|No Tanks Set Up Yet");
    EXPECT_TRUE(
        keeper.told().startsWith("1|No Tanks Set Up Yet/48/You have no tanks set up in Ostrelmark for Windows."));
    EXPECT_EQ(toolsOf(main), "mnu_ToolsLogbook mnu_ToolsTanksetup");
    EXPECT_FALSE(main.button("graphing").isEnabled() || main.mnu_FilePrint->isEnabled());
    keeper.addTank("Reef", "1");
    keeper.restart(); // with a tank, and tips that are no longer wanted
    SaveSetting("Show_Tips", "No");
    keeper.startProgram();
    EXPECT_EQ(keeper.tipsAtStart, 1);
    EXPECT_EQ(keeper.told(), "0");
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

TEST(MainWindow, AFileThatCannotBeUsedStopsTheStartAndStaysAsItIs)
{
    for (const QByteArray &content : {QByteArray(5000, 'x'), QByteArray()}) {
        Keeper keeper;
        keeper.g().gDatabase.reset();
        QFile file(keeper.databaseFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        QStringList shown;
        ShowOrder order(shown);
        try {
            Form<frm_OMKMDIMain>().MDIForm_Load();
            ADD_FAILURE() << "It started.";
        } catch (const RuntimeFailure &failure) {
            EXPECT_EQ(failure.number(), Failure::UnrecognizedFormat);
            EXPECT_TRUE(failure.description().contains("OM.MDB")) << failure.what();
        }
        EXPECT_EQ(shown.join(u'|') + keeper.told(), "0");
        keeper.g().gDatabase.reset();
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), content);
    }
}

TEST(MainWindow, TheEntriesOfTheHelpOpenItOrSayThatItIsMissing)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    keeper.doors.helpIsThere = false;
    for (const char *entry : {"mnu_HelpContents", "mnu_HelpSearch"}) {
        hand::choose(main, *main.mnu_Help, entry);
        EXPECT_EQ(keeper.told(),
                  "0| Ostrelmark 98/64/Unable to display Help Contents. There is no Help associated with "
                  "this project.");
    }
    ASSERT_EQ(keeper.doors.helps.size(), 2U);
    EXPECT_TRUE(keeper.doors.helps[0].at == HelpRequest::At::Contents);
    EXPECT_TRUE(keeper.doors.helps[1].at == HelpRequest::At::Search);
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
