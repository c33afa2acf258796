#include "Hands.h"
#include "platform/core/SettingsStore.h"
#include "windows/shell/frm_OMKOptions.h"

constexpr const char *optionKeys[] = {"Graph_Checks", "Graph_Style", "Graph_SkipZeroes", "GraphPrintColor",
                                      "Date_Order",   "Date_Delim",  "UseFile_Fresh",    "UseFile_Salt"};

class Options : public ::testing::Test
{
protected:
    /// The current values in one line: dates, graph, lists, water type.
    QString inForce()
    {
        const OptionsMembers &o = keeper.g().options;
        return QString("%1 %2 %3, %4 %5 %6 %7, %8 %9 ")
                   .arg(WordOf(o.DateOrder), o.DateDelimiter, o.DatePicture, o.GraphChecks)
                   .arg(o.GraphStyle)
                   .arg(o.GraphSkipZeroes)
                   .arg(o.GraphPrintColor)
                   .arg(o.UseFileFresh)
                   .arg(o.UseFileSalt) +
               keeper.g().gDefaultWaterType;
    }
    /// The values in the settings and in the database.
    QString stored()
    {
        QStringList texts;
        for (const char *key : optionKeys)
            texts << keeper.setting(key);
        return texts.join('|') + ", " +
               keeper.stored("default_salt || '|' || default_fresh || '|' || user_fieldname1 || '|' || user_fieldname2 "
                             "AS x FROM CONFIG");
    }
    void inDialog(const std::function<void(frm_OMKOptions &)> &action)
    {
        keeper.startProgram(); // another window must be in front before the dialog is shown again
        keeper.inNext(action);
        Form<frm_OMKOptions>().ShowOptions(2);
    }
    /// Changes every control of the dialog.
    static void changeEverything(frm_OMKOptions &w)
    {
        w.SSTab1->setCurrentIndex(0);
        click(*w.opt_Fresh);
        click(*w.opt_Dateform_ddmmyy);
        w.cbo_Delimiter->setCurrentText(".");
        hand::type(*w.txt_username1, "Fe & \"Mn\"");
        hand::type(*w.txt_username2, "keeper's");
        w.SSTab1->setCurrentIndex(1);
        w.cbo_GraphType->setCurrentText("2D XY");
        for (QWidget *button : std::initializer_list<QWidget *>{w.chk_SkipZeroValues, &control<QWidget>(w, "chk_ph"),
                                                                &control<QWidget>(w, "chk_user2"), w.opt_ColorPrinting})
            click(*button);
        w.SSTab1->setCurrentIndex(2);
        click(*w.opt_UseFreshFile);
        click(*w.opt_UseSaltFile);
    }

    /// Expects that OK is refused, and that neither OK nor Cancel after it changes anything.
    void expectRefused(const std::function<void()> &spoil, const std::function<void()> &mend)
    {
        const QString before = stored();
        inDialog([&](frm_OMKOptions &w) {
            keeper.told();
            changeEverything(w);
            EXPECT_EQ(keeper.g().options.DateOrder, DateOrder::DDMMYY); // the members follow the controls
            click(*w.cmdApply);                                         // stores nothing
            EXPECT_EQ(stored(), before);
            spoil();
            click(*w.cmdOK);
            EXPECT_EQ(keeper.told(), "0|failure 70");
            EXPECT_TRUE(w.isVisible());
            click(*w.cmdCancel); // the file is still held
            EXPECT_EQ(keeper.told(), "0");
        });
        mend();
        EXPECT_EQ(inForce(), defaults);
        EXPECT_EQ(stored(), before);
        SettingsStore asInTheFile(keeper.doors.settings().fileName());
        EXPECT_EQ(asInTheFile.value("Date_Order", "(none)"), "(none)");
    }

    Keeper keeper;
    const QString defaults = "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0 SALT";
    const QString changed = "DDMMYY . DD.MM.YY, 1111000000001 16 1 1, 1 1 FRESH";
};

TEST_F(Options, StrangeTextsGiveTheDefaults)
{
    const std::tuple<const char *, const char *, QString> rows[] = {
        {"Date_Order", "ddmmyy", defaults},
        {"Graph_Style", "2D Pie", defaults},
        {"Graph_Checks", "01", QString(defaults).replace("0111", "0100")}, // a text that is too short
        {"UseFile_Fresh", "true", QString(defaults).replace("0 0 SALT", "1 0 SALT")},
    };
    for (const auto &[key, text, expected] : rows) { // each starts with the controls as the former row left them
        SaveSetting(key, text);
        Form<frm_OMKOptions>().Get_Initial_Properties();
        EXPECT_EQ(inForce(), expected) << key << ' ' << text;
        SaveSetting(key, "Not Found");
    }
    keeper.g().gDatabase->Execute("UPDATE CONFIG SET default_salt = NULL, user_fieldname1 = NULL");
    Form<frm_OMKOptions>().Get_Initial_Properties();
    EXPECT_EQ(keeper.g().gDefaultWaterType + keeper.g().gUserFieldName1, "FRESH");
}

TEST_F(Options, NothingOfARefusedOkIsKeptWhenAnotherProgramHoldsTheFile)
{
    Database::setBusyTimeout(10); // used when the program opens the file again
    const auto asUsual = qScopeGuard([] { Database::setBusyTimeout(5000); });
    const auto other = Database::OpenDatabase(keeper.databaseFile());
    for (const char *hold : {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE", "BEGIN"}) {
        SCOPED_TRACE(hold);
        expectRefused(
            [&] {
                other->Execute(hold);
                other->OpenRecordset("SELECT * FROM CONFIG"); // a reader lets everything be written but not committed
            },
            [&] { other->Execute("ROLLBACK"); });
    }
}

TEST_F(Options, OkStoresEverythingForGoodAndAFailureLeavesTheDialogWithWhatWasEntered)
{
    const QString before = stored(), after = "1111000000001|16|1|1|DDMMYY|.|TRUE|TRUE, 0|1|Fe & \"Mn\"|";
    QDir inTheWay(keeper.doors.settings().fileName()); // a folder in the place of the file
    QFile::remove(inTheWay.path());
    ASSERT_TRUE(inTheWay.mkpath("full"));
    inDialog([&](frm_OMKOptions &w) {
        keeper.told();
        changeEverything(w);
        click(*w.cmdOK);
        EXPECT_EQ(keeper.told(), "0|failure 70");
        EXPECT_TRUE(w.isVisible());
        EXPECT_EQ(stored().section(", ", 1), before.section(", ", 1));
        ASSERT_TRUE(inTheWay.removeRecursively()); // once the folder is gone, OK stores
        click(*w.cmdOK);
    });
    EXPECT_FALSE(Forms::current().loaded<frm_OMKOptions>());
    EXPECT_EQ(inForce(), changed); // the members outlive the window
    EXPECT_EQ(stored(), after + "keeper's");

    keeper.restart(); // Enter in a name also stores, and all other values stay as they were
    inDialog([](frm_OMKOptions &w) {
        w.SSTab1->setCurrentIndex(0);
        hand::type(*w.txt_username2, "Silicate");
        QTest::keyClick(w.txt_username2, Qt::Key_Return);
    });
    EXPECT_EQ(stored() + inForce(), after + "Silicate" + changed);
}
