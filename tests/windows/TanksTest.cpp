#include "Desk.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

/// Tests the dialog of a tank.
class Tanks : public ::testing::Test
{
protected:
    using TankAction = std::function<void(frm_TankAddNew &)>;

    static void inNewTank(const TankAction &action)
    {
        Keeper::inNext<frm_TankAddNew>(action);
        Form<frm_TankAddNew>().AddNewTank();
    }
    static void inTank(const QString &name, const TankAction &action)
    {
        Keeper::inNext<frm_TankAddNew>(action);
        Form<frm_TankMaint>().ChangeTankInfo(name);
    }
    /// The texts of the boxes, and the water type.
    static QString held(frm_TankAddNew &w)
    {
        QString water;
        for (const QRadioButton *option : {w.opt_Freshwater, w.opt_Saltwater, w.opt_Reef, w.Opt_Brackish, w.opt_Pond})
            water += option->isChecked() ? option->objectName() : "";
        return shown(w, {"txt_tankname", "txt_long_desc", "txt_tanksize", "txt_tanknotes"}) + '|' + water;
    }
    /// A column of TANKLST, joined in the order of the ids.
    QString ofTanks(const QString &column)
    {
        return keeper.stored("group_concat(c) AS x FROM (SELECT " + column + " AS c FROM TANKLST ORDER BY tankid)");
    }

    Keeper keeper;
};

TEST_F(Tanks, OkChecksOneFaultAtATimeAndExactlyFiftyCharactersPass)
{
    // At first all fields are wrong; each step corrects one of them.
    const QString fifty(50, u'n');
    const std::tuple<const char *, QString, const char *> steps[] = {
        {"txt_tanksize", "12ab", "Tanksize entries must be a number."},
        {"txt_tanksize", "", "The tank size must be a number less than 10,000 gallons."},
        {"txt_tanksize", "1e5", "The tank size must be less than 10,000 gallons."},
        {"txt_tanksize", "9999", "The tank name must be less than 50 characters."},
        {"txt_tankname", "", "You must enter a name for your tank."},
        {"txt_tankname", "the \"big\" one", "The tank name cannot contain a quote(\") character."},
        {"txt_tankname", fifty, "The long description must be less than 50 characters."},
    };
    inNewTank([&](frm_TankAddNew &w) {
        for (MaskedBox *box : {w.txt_tankname, w.txt_long_desc}) {
            box->setMaxLength(60); // keys cannot exceed 50, but a text from elsewhere might
            box->setText(fifty + 'n');
        }
        for (const auto &[box, typed, text] : steps) {
            hand::type(control<QWidget>(w, box), typed);
            mouse::click(w.cmd_OK);
            EXPECT_EQ(keeper.told(), QString("1|Oops!/48/") + text);
        }
        EXPECT_EQ(keeper.count("TANKLST"), 0);
        hand::type(*w.txt_long_desc, fifty);
        hand::type(*w.txt_tanksize, "99999");
        hand::step(w, "ud_tanksize", "up");
        EXPECT_EQ(w.txt_tanksize->text(), "9999");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(ofTanks("length(tankname) || length(Tankdesc) || tanksize"), "50509999.0");
}

TEST_F(Tanks, WhatIsLongerThanItsBoxIsShownWholeAndKeptUntilItIsEdited)
{
    const QString sizes[] = {"0.125", "1500.5", "12345"}, longer(60, 'd');
    for (const QString &size : sizes)
        keeper.g().gDatabase->Execute(
            "INSERT INTO TANKLST (tankname, tankid, tanksize, Tankdesc, tanknotes) VALUES (?1, ?1, ?2, ?3, ?4)",
            {size, size.toDouble(), longer, QString("two\r\nlines")});
    const auto stored = [&] {
        return ofTanks("tanksize || length(tankname) || length(Tankdesc) || length(tanknotes)");
    };
    for (const QString &size : sizes)
        inTank(size, [&](frm_TankAddNew &w) {
            EXPECT_TRUE(held(w).startsWith(size + '|' + longer + '|' + size)) << held(w).toStdString();
            hand::type(*w.txt_tankname, size + "*");
            mouse::click(w.txt_tanksize);
            mouse::click(w.cmd_OK);
        });
    EXPECT_EQ(stored(), "0.12566010,12345.066010,1500.576010");
    inTank("12345*", [](frm_TankAddNew &w) { // the limit for typing holds again
        hand::type(*w.txt_tanksize, "99999");
        w.txt_long_desc->setFocus();
        w.txt_long_desc->setSelection(5, 20);
        hand::press(Qt::Key_Delete);
        EXPECT_EQ(w.txt_long_desc->cursorPosition(), 5);
        mouse::click(w.cmd_OK);
    });
    EXPECT_TRUE(stored().contains(",9999.064010,")) << stored().toStdString();
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Tanks, OkKeepsAForeignWaterType)
{
    keeper.addTank("Reef", "1", "9");
    inTank("Reef", [](frm_TankAddNew &w) { mouse::click(w.cmd_OK); });
    EXPECT_EQ(ofTanks("tankname || tanksize || TankWaterType"), "Reef55.09");
}

TEST_F(Tanks, NamesTypesAndNotesOfAnyScriptComeBack)
{
    const QString tanks[] = {"keeper's tank||55||opt_Freshwater",
                             "Größtes Becken||55|first\nsecond \"line\"|opt_Saltwater",
                             "аквариум 水槽||55|🐟 x 12\n\n' OR '1'='1|opt_Reef", " a pond ||55| |opt_Pond"};
    for (const QString &tank : tanks)
        inNewTank([&](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, tank.section('|', 0, 0));
            hand::type(*w.txt_tanknotes, tank.section('|', 3, 3));
            mouse::click(&control<QRadioButton>(w, tank.section('|', 4)), QPoint(8, 8));
            mouse::click(w.cmd_OK);
        });
    EXPECT_EQ(keeper.stored("count(DISTINCT tankid) AS x FROM TANKLST"), "4") << "all in one second";
    EXPECT_EQ(ofTanks("TankWaterType"), "1,2,3,5");
    keeper.restart();
    for (const QString &tank : tanks)
        inTank(tank.section('|', 0, 0), [&](frm_TankAddNew &w) {
            EXPECT_EQ(held(w), tank);
            mouse::click(w.cmd_Cancel);
        });
}

TEST_F(Tanks, ANameThatIsThereIsRefusedAndWhatWasTypedStands)
{
    keeper.addTank("Reef", "1");
    keeper.addTank("Pond", "2");
    const auto nameItReef = [&](const QString &better) {
        return [&, better](frm_TankAddNew &w) {
            hand::type(*w.txt_long_desc, "by the window");
            hand::type(*w.txt_tanksize, "80.5");
            hand::type(*w.txt_tankname, "Reef");
            mouse::click(w.cmd_OK);
            EXPECT_TRUE(keeper.told().startsWith("1|/0/That identical tank name already exists."));
            EXPECT_TRUE(held(w).startsWith("Reef|by the window|80.5|"));
            hand::type(*w.txt_tankname, better);
            mouse::click(w.cmd_OK);
        };
    };
    inNewTank(nameItReef("reef")); // a name that differs in case is another name
    inTank("Pond", nameItReef("Pond 2"));
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(ofTanks("tankid || tankname || tanksize"), "03/14/2026 09:26:53reef80.5,1Reef55.0,2Pond 280.5");
}

TEST_F(Tanks, DeletingTakesTheTankWithAllItsEntries)
{
    for (const QString id : {"id of Pond", "id of Reef"}) {
        keeper.addTank(id.mid(6), id);
        for (const char *sql : {"WATERLOG (tankname, logdate, logtime) VALUES (?, '2026-01-02', '10:00:00')",
                                "LIVESTOCK (tankname, dateadded, timeadded) VALUES (?, '2026-01-02', '10:00:00')",
                                "MAINTLOG (mainttankname, maintlogdate) VALUES (?, '2026-01-02')",
                                "MAINTSCHED (SchedTask, schedtankname) VALUES ('Feed ' || ?1, ?1)"})
            keeper.g().gDatabase->Execute(QString("INSERT INTO ") + sql, {id});
    }
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &list) {
        const auto expectDelete = [&](const QString &then, const char *rowsLeft) {
            QListWidget &names = *list.lst_tanklist;
            mouse::click(names.viewport(), names.visualItemRect(names.item(1)).center());
            mouse::click(list.cmd_DeleteTank);
            const QString told = keeper.told();
            EXPECT_TRUE(
                told.startsWith("1|Are you sure.../289/Are you sure you want to delete the tank you named Reef?"));
            EXPECT_TRUE(told.endsWith("(Remember, you CANNOT \"undo\" a delete!)" + then)) << told.toStdString();
            QString left;
            for (const char *table : {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED"})
                left += QString::number(keeper.count(table));
            EXPECT_EQ(left, rowsLeft);
        };
        expectDelete("", "22222"); // answered with the default button, Cancel
        keeper.doors.answers = {MsgBoxAnswer::OK};
        expectDelete("|Tank Deleted/64/The tank named Reef was successfully deleted.", "11112");
        EXPECT_EQ(lines(*list.lst_tanklist->model()), "Pond");
        EXPECT_EQ(keeper.g().gTankName + keeper.g().gTankId, "");
        mouse::click(list.cmd_ok);
    });
    Form<frm_TankMaint>().Show_List();
}
