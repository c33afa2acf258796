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

/// The same values as the controls show them.
QString shownBy(const frm_OMKOptions &w)
{
    const QRadioButton *order = w.opt_Dateform_MMDDYY->isChecked()   ? w.opt_Dateform_MMDDYY
                                : w.opt_Dateform_ddmmyy->isChecked() ? w.opt_Dateform_ddmmyy
                                                                     : w.opt_Dateform_YYMMDD;
    QString checks;
    for (const QCheckBox *check :
         {w.chk_ph, w.chk_ammonia, w.chk_nitrite, w.chk_nitrate, w.chk_sg, w.chk_temp, w.chk_o2, w.chk_dkh,
          w.chk_calcium, w.chk_Copper, w.chk_orp, w.chk_User1, w.chk_user2})
        checks += check->isChecked() ? u'1' : u'0';
    return QStringLiteral("%1 %2, %3 [%4] %5 %6, %7 %8, %9")
        .arg(order->text(), w.cbo_Delimiter->currentText(), checks, w.cbo_GraphType->currentText())
        .arg(w.chk_SkipZeroValues->isChecked())
        .arg(w.opt_ColorPrinting->isChecked())
        .arg(w.opt_UseFreshFile->isChecked())
        .arg(w.opt_UseSaltFile->isChecked())
        .arg(w.opt_Salt->isChecked() ? QStringLiteral("SALT") : QStringLiteral("FRESH"));
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

TEST(Options, StoredTextsGiveTheValuesInForce)
{
    using Stored = std::vector<std::pair<const char *, const char *>>;
    const struct
    {
        Stored stored;
        const char *inForce;
        const char *shown;
    } rows[] = {
        {{}, "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0", "02/18/97 /, 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Date_Order", "DDMMYY"}, {"Date_Delim", "."}},
         "DDMMYY . DD.MM.YY, 0111000000000 1 0 0, 0 0",
         "18.02.97 ., 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Date_Order", "YYMMDD"}, {"Date_Delim", "-"}},
         "YYMMDD - YY-MM-DD, 0111000000000 1 0 0, 0 0",
         "97-02-18 -, 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Date_Order", "XX"}, {"Date_Delim", "#"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0",
         "02/18/97 /, 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Date_Order", "ddmmyy"}, {"Date_Delim", "N"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0",
         "02/18/97 /, 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Date_Order", "NOT FOUND"}, {"Date_Delim", ""}, {"Graph_Checks", "NOT FOUND"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 0",
         "02/18/97 /, 0111000000000 [2D Bar] 0 0, 0 0"},
        {{{"Graph_Style", "0"}, {"Graph_SkipZeroes", "1"}, {"GraphPrintColor", "1"}},
         "MMDDYY / MM/DD/YY, 0111000000000 0 1 1, 0 0",
         "02/18/97 /, 0111000000000 [3D Bar] 1 1, 0 0"},
        {{{"Graph_Style", "99"}, {"GraphPrintColor", "2"}},
         "MMDDYY / MM/DD/YY, 0111000000000 99 0 0, 0 0",
         "02/18/97 /, 0111000000000 [] 0 0, 0 0"},
        {{{"Graph_Style", "14"}, {"Graph_Checks", "1000000000001"}},
         "MMDDYY / MM/DD/YY, 1000000000001 14 0 0, 0 0",
         "02/18/97 /, 1000000000001 [2D Pie] 0 0, 0 0"},
        {{{"Graph_Style", "2D Pie"}, {"Graph_Checks", "01"}, {"Graph_SkipZeroes", "yes"}}, // a text cut short
         "MMDDYY / MM/DD/YY, 0100000000000 1 0 0, 0 0",
         "02/18/97 /, 0100000000000 [2D Bar] 0 0, 0 0"},
        {{{"Graph_Style", "40000"}, {"UseFile_Fresh", "true"}, {"UseFile_Salt", "YES"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 1 0",
         "02/18/97 /, 0111000000000 [2D Bar] 0 0, 1 0"},
        {{{"UseFile_Fresh", "FALSE"}, {"UseFile_Salt", "TRUE"}},
         "MMDDYY / MM/DD/YY, 0111000000000 1 0 0, 0 1",
         "02/18/97 /, 0111000000000 [2D Bar] 0 0, 0 1"},
    };
    // One window for all, each on what the one before left in the controls; then each in a window of its own.
    for (const bool afresh : {false, true}) {
        Keeper keeper;
        for (const auto &row : rows) {
            SCOPED_TRACE(row.inForce);
            if (afresh)
                keeper.restart();
            for (const char *key : optionKeys)
                SaveSetting(QLatin1String(key), QStringLiteral("Not Found"));
            for (const auto &[key, text] : row.stored)
                SaveSetting(QLatin1String(key), QLatin1String(text));
            Form<frm_OMKOptions>().Get_Initial_Properties();
            EXPECT_EQ(inForce(keeper.g()), QLatin1String(row.inForce) + QStringLiteral(", SALT SALT"));
            EXPECT_EQ(shownBy(Form<frm_OMKOptions>()), QLatin1String(row.shown) + QStringLiteral(", SALT"));
        }
    }
}

TEST(Options, WaterTypeAndFieldNamesTravelWithTheData)
{
    const struct
    {
        const char *change;
        const char *waterType, *name1, *name2;
    } rows[] = {
        {"UPDATE CONFIG SET default_salt = 1", "SALT", "User Field 1", "User field 2"},
        {"UPDATE CONFIG SET default_salt = 0, user_fieldname1 = NULL, user_fieldname2 = 'Iron & co'", "FRESH", "",
         "Iron & co"},
        {"UPDATE CONFIG SET default_salt = NULL, user_fieldname1 = ' ', user_fieldname2 = NULL", "FRESH", " ", ""},
    };
    Keeper keeper;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.change);
        keeper.g().gDatabase->Execute(QLatin1String(row.change));
        auto &window = Form<frm_OMKOptions>();
        window.Get_Initial_Properties();
        const QString name1 = QLatin1String(row.name1), name2 = QLatin1String(row.name2);
        EXPECT_EQ(keeper.g().gDefaultWaterType, QLatin1String(row.waterType));
        EXPECT_EQ(keeper.g().options.DefaultWaterType, QLatin1String(row.waterType));
        EXPECT_EQ(keeper.g().gUserFieldName1 + u'|' + keeper.g().gUserFieldName2, name1 + u'|' + name2);
        EXPECT_EQ(window.txt_username1->text() + u'|' + window.txt_username2->text(), name1 + u'|' + name2);
        EXPECT_EQ(window.chk_User1->text() + u'|' + window.chk_user2->text(),
                  QString(name1 + u'|' + name2).replace(u'&', QStringLiteral("&&"))); // one & is seen
    }
}

TEST(Options, EveryOtherWayOutKeepsWhatWasStored)
{
    const std::pair<const char *, void (*)(frm_OMKOptions &)> ways[] = {
        {"Cancel", [](frm_OMKOptions &w) { click(*w.cmdCancel); }},
        {"Esc", [](frm_OMKOptions &w) { QTest::keyClick(&w, Qt::Key_Escape); }},
        {"title bar", [](frm_OMKOptions &w) { w.close(); }},
        {"Apply, then Esc",
         [](frm_OMKOptions &w) {
             click(*w.cmdApply);
             EXPECT_TRUE(w.isVisible());
             QTest::keyClick(&w, Qt::Key_Escape);
         }},
    };
    Keeper keeper;
    keeper.startProgram(); // the same dialog is shown again: another window must have been in front in between
    const QString config = configRow(keeper), settings = settingsWritten(keeper);
    for (const auto &[name, leave] : ways) {
        SCOPED_TRACE(name);
        keeper.inNext<frm_OMKOptions>([&, leave = leave](frm_OMKOptions &w) {
            EXPECT_EQ(w.SSTab1->currentIndex(), 2);
            changeEverything(w);
            EXPECT_EQ(keeper.g().options.DateOrder, QStringLiteral("DDMMYY")); // the members go along with the controls
            EXPECT_EQ(w.opt_Dateform_YYMMDD->text(), QStringLiteral("97.02.18"));
            leave(w);
        });
        Form<frm_OMKOptions>().ShowOptions(2);
        EXPECT_EQ(inForce(keeper.g()), defaultsInForce);
        EXPECT_EQ(keeper.g().gUserFieldName1, QStringLiteral("User Field 1"));
        EXPECT_EQ(configRow(keeper), config);
        EXPECT_EQ(settingsWritten(keeper), settings);
        EXPECT_EQ(settings, QStringLiteral("(none)|(none)|(none)|(none)|(none)|(none)|(none)|(none)"));
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

    // Enter in a name stores too, and the other way round.
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        click(*w.opt_Salt);
        retype(*w.txt_username2, QStringLiteral("Silicate"));
        QTest::keyClick(w.txt_username2, Qt::Key_Return);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_EQ(configRow(keeper), QStringLiteral("1|0|Fe & \"Mn\"|Silicate"));

    keeper.restart();
    Form<frm_OMKOptions>().Get_Initial_Properties();
    EXPECT_EQ(inForce(keeper.g()), QString(changedInForce).replace(QStringLiteral("FRESH"), QStringLiteral("SALT")));
    EXPECT_EQ(keeper.g().gUserFieldName2, QStringLiteral("Silicate"));
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
        EXPECT_EQ(w.txt_username2->text(), QStringLiteral("keeper's"));
        click(*w.cmdCancel);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_EQ(configRow(keeper), config);
    EXPECT_EQ(inForce(keeper.g()), defaultsInForce);

    ASSERT_TRUE(inTheWay.removeRecursively()); // and once the way is free, it stores
    keeper.inNext<frm_OMKOptions>([&](frm_OMKOptions &w) {
        changeEverything(w);
        click(*w.cmdOK);
    });
    Form<frm_OMKOptions>().ShowOptions(0);
    EXPECT_EQ(keeper.doors.failures.size(), 1u);
    EXPECT_EQ(inForce(keeper.g()), changedInForce);
}

TEST(Options, UserFieldNamesAreJudged)
{
    const QString blank =
        QStringLiteral("User defined field names cannot be blank. Please enter a name of at least one character.");
    const QString same =
        QStringLiteral("Both User defined field names cannot be the same. Please make them different by at "
                       "least one character.");
    const struct
    {
        const char *name1, *name2;
        QString box;
        const char *focus;
    } rows[] = {
        {"Iron", "iron", {}, ""},
        {"Iron", "Silicate", {}, ""},
        {"", "Iron", blank, "txt_username1"},
        {" Iron", "Silicate", blank, "txt_username1"},
        {"Iron", " ", blank, "txt_username2"},
        {"", "", blank, "txt_username1"},
        {"Iron", "Iron", same, "txt_username2"},
    };
    Keeper keeper;
    auto &window = Form<frm_OMKOptions>();
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.name1) + '|' + row.name2);
        window.opt_Salt->setFocus();
        window.txt_username1->setText(QLatin1String(row.name1));
        window.txt_username2->setText(QLatin1String(row.name2));
        EXPECT_EQ(window.CheckUserFieldNames(), row.box.isEmpty());
        const auto boxes = keeper.doors.takeBoxes();
        ASSERT_EQ(boxes.size(), row.box.isEmpty() ? 0u : 1u);
        if (boxes.empty())
            continue;
        EXPECT_EQ(boxes[0].text, row.box);
        EXPECT_EQ(boxes[0].title, QStringLiteral("Oops!"));
        EXPECT_EQ(boxes[0].icon(), vbExclamation);
        EXPECT_EQ(window.focusWidget()->objectName(), QLatin1String(row.focus));
    }
}
