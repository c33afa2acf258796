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
    static QString held(frm_TankAddNew &w)
    {
        return shown(w, {"txt_tankname", "txt_long_desc", "txt_tanksize", "txt_tanknotes"});
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
    const QString fifty(50, u'n'), there(50, u'N'), oops = "1|Oops!/48/", twice = "1|/0/That identical tank name";
    const std::tuple<const char *, QString, QString> steps[] = {
        {"txt_tanksize", "12ab", oops + "Tanksize entries must be a number."},
        {"txt_tanksize", "", oops + "The tank size must be a number less than 10,000 gallons."},
        {"txt_tanksize", "1e5", oops + "The tank size must be less than 10,000 gallons."},
        {"txt_tanksize", "9999", oops + "The tank name must be less than 50 characters."},
        {"txt_tankname", "", oops + "You must enter a name for your tank."},
        {"txt_tankname", "the \"big\" one", oops + "The tank name cannot contain a quote(\") character."},
        {"txt_tankname", there, oops + "The long description must be less than 50 characters."},
        {"txt_long_desc", fifty, twice},
    };
    keeper.addTank(there, "id");
    inNewTank([&](frm_TankAddNew &w) {
        for (MaskedBox *box : {w.txt_tankname, w.txt_long_desc}) {
            box->setMaxLength(60); // keys cannot exceed 50, but a text from elsewhere might
            box->setText(fifty + 'n');
        }
        for (const auto &[box, typed, text] : steps) {
            hand::type(control<QWidget>(w, box), typed);
            mouse::click(w.cmd_OK);
            EXPECT_TRUE(keeper.told().startsWith(text)) << text.toStdString();
        }
        hand::type(*w.txt_tankname, fifty); // differs in case, and so is another name
        hand::type(*w.txt_tanksize, "99999");
        hand::step(w, "ud_tanksize", "up");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(ofTanks("tankname || length(Tankdesc) || tanksize"), fifty + "509999.0");
    inTank(fifty, [&](frm_TankAddNew &w) {
        hand::type(*w.txt_tankname, there);
        mouse::click(w.cmd_OK);
        EXPECT_TRUE(keeper.told().startsWith(twice));
        mouse::click(w.cmd_Cancel);
    });
    EXPECT_EQ(ofTanks("tankname"), fifty + ',' + there);
}

TEST_F(Tanks, WhatNoBoxOrOptionCanHoldIsShownWholeAndKeptUntilItIsEdited)
{
    const QString longer(60, 'd');
    for (const QString size : {"0.125", "1500.5", "12345"}) {
        keeper.g().gDatabase->Execute("INSERT INTO TANKLST (tankname, tankid, tanksize, Tankdesc, tanknotes, "
                                      "TankWaterType) VALUES (?1, ?1, ?2, ?3, ?4, '9')",
                                      {size, size.toDouble(), longer, QString("two\r\nlines")});
        inTank(size, [&](frm_TankAddNew &w) {
            EXPECT_EQ(held(w), size + '|' + longer + '|' + size + "|two\nlines");
            hand::type(*w.txt_tankname, size + "*");
            mouse::click(w.txt_tanksize);
            mouse::click(w.cmd_OK);
        });
    }
    EXPECT_EQ(ofTanks("tankname || tanksize"), "0.125*0.125,12345*12345.0,1500.5*1500.5");
    inTank("12345*", [](frm_TankAddNew &w) {
        hand::type(*w.txt_tanksize, "99999"); // the limit for typing holds again
        w.txt_long_desc->setFocus();
        w.txt_long_desc->setSelection(5, 20);
        hand::press(Qt::Key_Delete);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(ofTanks("tanksize || '/' || length(Tankdesc) || length(tanknotes) || TankWaterType"),
              "0.125/60109,9999.0/40109,1500.5/60109");
    EXPECT_EQ(keeper.told(), "0");
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
            EXPECT_EQ(held(w), tank.section('|', 0, 3));
            EXPECT_TRUE(control<QRadioButton>(w, tank.section('|', 4)).isChecked());
            mouse::click(w.cmd_Cancel);
        });
}

TEST_F(Tanks, DeletingAsksAndTakesTheTankWithItsEntriesAlone)
{
    for (const QString id : {"id of Pond", "id of Reef"}) {
        keeper.addTank(id.mid(6), id);
        for (const char *sql : {"WATERLOG (tankname, logdate, logtime) VALUES (?, '2026-01-02', '10:00:00')",
                                "LIVESTOCK (tankname, dateadded, timeadded) VALUES (?, '2026-01-02', '10:00:00')",
                                "MAINTLOG (mainttankname, maintlogdate) VALUES (?, '2026-01-02')",
                                "MAINTSCHED (SchedTask, schedtankname) VALUES ('Feed ' || ?1, ?1)"})
            keeper.g().gDatabase->Execute(QString("INSERT INTO ") + sql, {id});
    }
    const QString question = "1|Are you sure.../289/Are you sure you want to delete the tank you named Reef?  Deleting "
                             "this entry will delete ALL entries for this tank in EVERY logbook - Maintenence, Water "
                             "Quality, and Livestock. (Remember, you CANNOT \"undo\" a delete!)";
    keeper.doors.answers = {MsgBoxAnswer::Cancel, MsgBoxAnswer::OK};
    for (const auto &[then, expected] :
         {std::pair("", "22222"), {"|Tank Deleted/64/The tank named Reef was successfully deleted.", "11112"}}) {
        Form<frm_TankMaint>().DeleteTankInfo("Reef");
        EXPECT_EQ(keeper.told(), question + then);
        QString left;
        for (const char *table : {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED"})
            left += QString::number(keeper.count(table));
        EXPECT_EQ(left, expected);
    }
    EXPECT_EQ(ofTanks("tankname") + keeper.g().gTankName + keeper.g().gTankId, "Pond");
}
