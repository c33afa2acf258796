#include "Hands.h"
#include "platform/core/SettingsStore.h"
#include "windows/shell/frm_OMKOptions.h"

class Options : public ::testing::Test
{
protected:
    /// The current values in one line: dates, graph, lists, water type.
    QString inForce()
    {
        const OptionsMembers &o = keeper.g().options;
        QString text;
        QTextStream(&text) << WordOf(o.DateOrder) << ' ' << o.DatePicture << ' ' << o.GraphChecks << ' ' << o.GraphStyle
                           << ' ' << o.GraphSkipZeroes << o.GraphPrintColor << o.UseFileFresh << o.UseFileSalt << ' '
                           << keeper.g().gDefaultWaterType;
        return text;
    }
    /// The values in the settings and in the database.
    QString stored()
    {
        QStringList texts;
        for (const char *key : {"Graph_Checks", "Graph_Style", "Graph_SkipZeroes", "GraphPrintColor", "Date_Order",
                                "Date_Delim", "UseFile_Fresh", "UseFile_Salt"})
            texts << keeper.setting(key);
        return texts.join('|') + ", " +
               keeper.stored("default_salt || '|' || default_fresh || '|' || user_fieldname1 || '|' || user_fieldname2 "
                             "AS x FROM CONFIG");
    }
    void inDialog(const std::function<void(frm_OMKOptions &)> &action)
    {
        keeper.startProgram(); // another window must be in front before the dialog is shown again
        keeper.told();
        keeper.inNext(action);
        Form<frm_OMKOptions>().ShowOptions(0);
    }
    static void changeEverything(frm_OMKOptions &w)
    {
        for (const char *button : {"opt_Fresh", "opt_Dateform_ddmmyy", "chk_SkipZeroValues", "chk_ph", "chk_user2",
                                   "opt_ColorPrinting", "opt_UseFreshFile", "opt_UseSaltFile"})
            control<QAbstractButton>(w, button).click();
        w.cbo_Delimiter->setCurrentText(".");
        w.cbo_GraphType->setCurrentText("2D XY");
        hand::type(*w.txt_username1, "Fe & \"Mn\"");
        hand::type(*w.txt_username2, "keeper's");
    }

    Keeper keeper;
    const QString defaults = "MMDDYY MM/DD/YY 0111000000000 1 0000 SALT";
};

TEST_F(Options, StrangeTextsGiveTheDefaults)
{
    for (const auto &[key, text] :
         {std::pair("Date_Order", "ddmmyy"), {"Date_Delim", "#"}, {"Graph_Style", "2D Pie"}}) {
        SaveSetting(key, text);
        Form<frm_OMKOptions>().Get_Initial_Properties();
        EXPECT_EQ(inForce(), defaults) << key << ' ' << text;
    }
    SaveSetting("Graph_Checks", "01"); // is too short
    SaveSetting("UseFile_Fresh", "true");
    keeper.g().gDatabase->Execute("UPDATE CONFIG SET default_salt = NULL, user_fieldname1 = NULL");
    Form<frm_OMKOptions>().Get_Initial_Properties();
    EXPECT_EQ(inForce() + keeper.g().gUserFieldName1, "MMDDYY MM/DD/YY 0100000000000 1 0010 FRESH");
}

TEST_F(Options, NothingOfARefusedOkIsKeptWhenAnotherProgramHoldsTheFile)
{
    Database::setBusyTimeout(10); // used when the program opens the file again
    const auto asUsual = qScopeGuard([] { Database::setBusyTimeout(5000); });
    const auto other = Database::OpenDatabase(keeper.databaseFile());
    const QString before = stored();
    for (const char *hold : {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE", "BEGIN"}) {
        SCOPED_TRACE(hold);
        inDialog([&](frm_OMKOptions &w) {
            changeEverything(w);
            EXPECT_EQ(keeper.g().options.DateOrder, DateOrder::DDMMYY); // the members follow the controls
            click(*w.cmdApply);                                         // stores nothing
            EXPECT_EQ(stored(), before);
            other->Execute(hold);
            other->OpenRecordset("SELECT * FROM CONFIG"); // a reader lets everything be written but not committed
            click(*w.cmdOK);
            EXPECT_EQ(keeper.told(), "0|failure 70");
            click(*w.cmdCancel); // the file is still held
            EXPECT_EQ(keeper.told(), "0");
        });
        other->Execute("ROLLBACK");
        EXPECT_EQ(inForce(), defaults);
        EXPECT_EQ(stored(), before);
        EXPECT_EQ(SettingsStore(keeper.doors.settings().fileName()).value("Date_Order", "(none)"), "(none)");
    }
}

TEST_F(Options, OkStoresEverythingForGoodAndAFailureLeavesTheDialogWithWhatWasEntered)
{
    const QString inDatabase = stored().section(", ", 1);
    QDir inTheWay(keeper.doors.settings().fileName()); // a folder in the place of the file
    QFile::remove(inTheWay.path());
    ASSERT_TRUE(inTheWay.mkpath("full"));
    inDialog([&](frm_OMKOptions &w) {
        changeEverything(w);
        click(*w.cmdOK);
        EXPECT_EQ(keeper.told(), "0|failure 70");
        EXPECT_EQ(stored().section(", ", 1), inDatabase);
        ASSERT_TRUE(inTheWay.removeRecursively()); // once the folder is gone, OK stores
        EXPECT_TRUE(w.isVisible());
        click(*w.cmdOK);
    });
    const QString changed = "DDMMYY DD.MM.YY 1111000000001 16 1111 FRESH";
    const QString after = "1111000000001|16|1|1|DDMMYY|.|TRUE|TRUE, 0|1|Fe & \"Mn\"|";
    EXPECT_EQ(inForce(), changed); // the members outlive the window
    EXPECT_EQ(stored(), after + "keeper's");
    keeper.restart(); // Enter in a name also stores, and all other values stay as they were
    inDialog([](frm_OMKOptions &w) {
        hand::type(*w.txt_username2, "Silicate");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(stored() + inForce(), after + "Silicate" + changed);
}
