#include "Keeper.h"
#include "shell/frm_OMKOptions.h"

namespace {

constexpr const char *optionKeys[] = {"Graph_Checks", "Graph_Style", "Graph_SkipZeroes", "GraphPrintColor",
                                      "Date_Order",   "Date_Delim",  "UseFile_Fresh",    "UseFile_Salt"};

/// The values in force, in one line: dates, graph, lists, water type.
QString inForce(const Globals &g)
{
    const OptionsMembers &o = g.options;
    return QStringLiteral("%1 %2 %3, %4 %5 %6 %7, %8 %9")
               .arg(o.DateOrder, o.DateDelimiter, o.DatePicture, o.GraphChecks)
               .arg(o.GraphStyle)
               .arg(o.GraphSkipZeroes)
               .arg(o.GraphPrintColor)
               .arg(o.UseFileFresh)
               .arg(o.UseFileSalt) +
           u", " + o.DefaultWaterType + u' ' + g.gDefaultWaterType;
}

const QString defaultsInForce = QStringLiteral("MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0, SALT SALT");
const QString changedInForce = QStringLiteral("DDMMYY . DD.MM.YY, 1111000000001 16 1 1, 1 1, FRESH FRESH");

void choose(QComboBox &combo, const QString &text)
{
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int i = 0; i < combo.count() && combo.currentText() != text; ++i)
        QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(combo.currentText(), text);
}

void retype(QLineEdit &box, const QString &text)
{
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
}

/// Changes everything that the dialog has, as a keeper would: mouse and keys.
void changeEverything(frm_OMKOptions &w)
{
    w.SSTab1->setCurrentIndex(0);
    for (QRadioButton *option : {w.opt_Fresh, w.opt_Dateform_ddmmyy})
        click(*option);
    choose(*w.cbo_Delimiter, QStringLiteral("."));
    retype(*w.txt_username1, QStringLiteral("Fe & \"Mn\""));
    retype(*w.txt_username2, QStringLiteral("keeper's"));
    w.SSTab1->setCurrentIndex(1);
    choose(*w.cbo_GraphType, QStringLiteral("2D XY"));
    for (QAbstractButton *button :
         std::initializer_list<QAbstractButton *>{w.chk_SkipZeroValues, w.chk_ph, w.chk_user2, w.opt_ColorPrinting})
        click(*button);
    w.SSTab1->setCurrentIndex(2);
    for (QRadioButton *option : {w.opt_UseFreshFile, w.opt_UseSaltFile})
        click(*option);
}

QString configRow(Keeper &keeper)
{
    Recordset config = keeper.g().gDatabase->OpenRecordset(QStringLiteral("SELECT * FROM CONFIG"));
    QStringList texts;
    for (const char *column : {"default_salt", "default_fresh", "user_fieldname1", "user_fieldname2"})
        texts += config[QLatin1String(column)].text();
    return texts.join(u'|');
}

QString settingsWritten(Keeper &keeper)
{
    QStringList texts;
    for (const char *key : optionKeys)
        texts += keeper.setting(QLatin1String(key));
    return texts.join(u'|');
}

} // namespace

TEST(Options, StoredTextsGiveTheValuesInForceAndStrangeOnesTheDefaults)
{
    const struct
    {
        std::vector<std::pair<const char *, const char *>> stored;
        const char *inForce;
    } rows[] = {
        {{}, "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0"},
        {{{"Date_Order", "YYMMDD"}, {"Date_Delim", "-"}}, "YYMMDD - YY-MM-DD, 0111000000000 1 0 0, 0 0"},
        {{{"Date_Order", "ddmmyy"}, {"Date_Delim", "#"}}, "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0"},
        {{{"Date_Delim", ""}, {"Graph_Checks", "NOT FOUND"}}, "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0"},
        {{{"Graph_Style", "0"}, {"Graph_SkipZeroes", "1"}, {"GraphPrintColor", "2"}},
         "MMDDYY / MM/DD/YY, 0111000000000 0 1 0, 0 0"},
        {{{"Graph_Style", "2D Pie"}, {"Graph_Checks", "01"}}, // a text cut short
         "MMDDYY / MM/DD/YY, 0100000000000 1 0 0, 0 0"},
        {{{"Graph_Style", "40000"}, {"UseFile_Fresh", "true"}, {"UseFile_Salt", "YES"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 1 0"},
    };
    Keeper keeper;
    for (const auto &row : rows) { // each on what the one before left in the controls
        for (const char *key : optionKeys)
            SaveSetting(key, QStringLiteral("Not Found"));
        for (const auto &[key, text] : row.stored)
            SaveSetting(key, text);
        Form<frm_OMKOptions>().Get_Initial_Properties();
        EXPECT_EQ(inForce(keeper.g()), QString(row.inForce) + ", SALT SALT");
    }
}

TEST(Options, WaterTypeAndFieldNamesTravelWithTheData)
{
    Keeper keeper;
    for (const auto &[change, inForce] :
         {std::pair("default_salt = 0, user_fieldname1 = NULL, user_fieldname2 = 'Iron & co'", "FRESH||Iron & co"),
          std::pair("default_salt = NULL, user_fieldname1 = ' ', user_fieldname2 = 'a'", "FRESH| |a"),
          std::pair("default_salt = 1", "SALT| |a")}) {
        keeper.g().gDatabase->Execute(QString("UPDATE CONFIG SET ") + change);
        Form<frm_OMKOptions>().Get_Initial_Properties();
        const Globals &g = keeper.g();
        EXPECT_EQ(QString(g.gDefaultWaterType + u'|' + g.gUserFieldName1 + u'|' + g.gUserFieldName2), inForce);
        EXPECT_EQ(g.options.DefaultWaterType, g.gDefaultWaterType);
    }
}

TEST(Options, EveryOtherWayOutKeepsWhatWasStored)
{
    Keeper keeper;
    keeper.startProgram(); // the same dialog is shown again: another window must have been in front in between
    const QString config = configRow(keeper), settings = settingsWritten(keeper);
    for (const bool apply : {false, true}) {
        keeper.inNext<frm_OMKOptions>([&](frm_OMKOptions &w) {
            changeEverything(w);
            EXPECT_EQ(keeper.g().options.DateOrder, "DDMMYY"); // the members go along with the controls
            if (apply)
                click(*w.cmdApply);
            EXPECT_TRUE(w.isVisible());
            apply ? void(w.close()) : click(*w.cmdCancel);
        });
        Form<frm_OMKOptions>().ShowOptions(2);
        EXPECT_EQ(inForce(keeper.g()), defaultsInForce);
        EXPECT_EQ(configRow(keeper) + settingsWritten(keeper), config + settings);
    }
}

TEST(Options, OkStoresEverythingForGood)
{
    Keeper keeper;
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        changeEverything(w);
        click(*w.cmdOK);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_FALSE(Forms::current().loaded<frm_OMKOptions>());
    EXPECT_EQ(inForce(keeper.g()), changedInForce); // the members outlive the window
    EXPECT_EQ(settingsWritten(keeper), QStringLiteral("1111000000001|16|1|1|DDMMYY|.|TRUE|TRUE"));
    EXPECT_EQ(configRow(keeper), QStringLiteral("0|1|Fe & \"Mn\"|keeper's"));

    keeper.restart(); // Enter in a name stores too, and all the others again as they were
    Form<frm_OMKOptions>().Get_Initial_Properties();
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        retype(*w.txt_username2, QStringLiteral("Silicate"));
        QTest::keyClick(w.txt_username2, Qt::Key_Return);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_EQ(configRow(keeper), "0|1|Fe & \"Mn\"|Silicate");
    EXPECT_EQ(settingsWritten(keeper), "1111000000001|16|1|1|DDMMYY|.|TRUE|TRUE");
    EXPECT_EQ(inForce(keeper.g()), changedInForce);
    EXPECT_TRUE(keeper.doors.boxes.empty());
}

TEST(Options, AFailureOfTheSettingsLeavesTheDialogWithWhatWasEntered)
{
    Keeper keeper;
    keeper.startProgram(); // the same dialog is shown again: another window must have been in front in between
    const QString config = configRow(keeper);
    QDir inTheWay(keeper.doors.settings().fileName()); // a folder where the file should be
    ASSERT_TRUE(QFile::remove(inTheWay.path()));
    ASSERT_TRUE(inTheWay.mkpath(QStringLiteral("full")));
    keeper.inNext<frm_OMKOptions>([&](frm_OMKOptions &w) {
        changeEverything(w);
        click(*w.cmdOK);
        ASSERT_EQ(keeper.doors.failures.size(), 1u);
        EXPECT_EQ(keeper.doors.failures.front().number(), Failure::PermissionDenied);
        EXPECT_TRUE(w.isVisible());
        EXPECT_EQ(configRow(keeper), config);
        ASSERT_TRUE(inTheWay.removeRecursively()); // and once the way is free, it stores
        click(*w.cmdOK);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_EQ(keeper.doors.failures.size(), 1u);
    EXPECT_EQ(inForce(keeper.g()), changedInForce);
}

TEST(Options, UserFieldNamesAreJudged)
{
    const QString blank = "1|Oops!/48/User defined field names cannot be blank. Please enter a name of at least one "
                          "character.";
    const struct
    {
        const char *name1, *name2;
        QString told;
    } rows[] = {
        {"Iron", "iron", "0"},
        {" Iron", "Silicate", blank},
        {"Iron", " ", blank},
        {"Iron", "Iron",
         "1|Oops!/48/Both User defined field names cannot be the same. Please make them different by "
         "at least one character."},
    };
    Keeper keeper;
    auto &window = Form<frm_OMKOptions>();
    for (const auto &row : rows) {
        window.txt_username1->setText(row.name1);
        window.txt_username2->setText(row.name2);
        EXPECT_EQ(window.CheckUserFieldNames(), row.told == "0");
        EXPECT_EQ(keeper.told(), row.told);
    }
}
