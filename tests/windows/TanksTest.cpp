#include <QListWidget>
#include <QPlainTextEdit>

#include "Hands.h"
#include "Keeper.h"
#include "tanks/frm_TankAddNew.h"
#include "tanks/frm_TankMaint.h"

namespace {

using TankAction = std::function<void(frm_TankAddNew &)>;

void inNewTank(const TankAction &action)
{
    Keeper::inNext<frm_TankAddNew>(action);
    Form<frm_TankAddNew>().AddNewTank();
}

void inTank(const QString &name, const TankAction &action)
{
    Keeper::inNext<frm_TankAddNew>(action);
    Form<frm_TankMaint>().ChangeTankInfo(name);
}

/// Clicks a name of the list, and a button.
void clickTankAnd(frm_TankMaint &list, int row, QPushButton *button)
{
    QListWidget &names = *list.lst_tanklist;
    mouse::click(names.viewport(), names.visualItemRect(names.item(row)).center());
    mouse::click(button);
}

QString listed(const frm_TankMaint &list)
{
    QStringList names;
    for (int i = 0; i < list.lst_tanklist->count(); ++i)
        names << list.lst_tanklist->item(i)->text();
    return names.join(u'|');
}

/// What a dialog holds, in one line.
QString heldBy(const frm_TankAddNew &w)
{
    QString type = "none";
    for (const QRadioButton *option : {w.opt_Freshwater, w.opt_Saltwater, w.opt_Reef, w.Opt_Brackish, w.opt_Pond})
        type = option->isChecked() ? option->text() : type;
    return QStringList{w.txt_tankname->Text(), w.txt_long_desc->Text(), w.txt_tanksize->text(), type,
                       w.txt_tanknotes->toPlainText()}
        .join(u'|');
}

/// Column of TANKLST in the order of the ids, joined.
QString ofTanks(Keeper &keeper, const QString &column)
{
    return keeper.stored("SELECT group_concat(c) AS t FROM (SELECT " + column + " AS c FROM TANKLST ORDER BY tankid)",
                         "t");
}

} // namespace

TEST(Tanks, OkChecksOneFaultAtATimeAndExactlyFiftyCharactersPass)
{
    // From a dialog that is wrong throughout, one fault is mended at a time.
    const QString fifty(50, u'n'), more(51, u'd');
    const struct
    {
        const char *box;
        QString typed;
        const char *text;
    } steps[] = {
        {"txt_tanksize", "", "The tank size must be a number less than 10,000 gallons."},
        {"txt_tanksize", "1e5", "The tank size must be less than 10,000 gallons."},
        {"txt_tanksize", "9999", "The tank name must be less than 50 characters."},
        {"txt_tankname", "", "You must enter a name for your tank."},
        {"txt_tankname", "the \"big\" one", "The tank name cannot contain a quote(\") character."},
        {"txt_tankname", fifty, "The long description must be less than 50 characters."},
    };
    Keeper keeper;
    inNewTank([&](frm_TankAddNew &w) {
        for (MaskedBox *box : {w.txt_tankname, w.txt_long_desc}) {
            box->setMaxLength(60); // no key gets beyond 50; a text from elsewhere might
            box->setText(more);
        }
        for (const auto &step : steps) {
            hand::type(control<QWidget>(w, step.box), step.typed);
            mouse::click(w.cmd_OK);
            EXPECT_EQ(keeper.told(), QString("1|Oops!/48/") + step.text);
        }
        EXPECT_EQ(keeper.count("TANKLST"), 0);
        hand::type(*w.txt_long_desc, fifty);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(keeper.count("TANKLST WHERE length(tankname) = 50 AND length(Tankdesc) = 50 AND tanksize = 9999"), 1);
}

TEST(Tanks, SizeIsANumberAndStepsFromWhatTheBoxHolds)
{
    Keeper keeper;
    inNewTank([&](frm_TankAddNew &w) {
        const struct
        {
            const char *typed, *arrow, *text;
        } steps[] = {{"99999", "up", "9999"}, {"0", "down", "0"}};
        hand::type(*w.txt_tankname, "Reef");
        hand::type(*w.txt_tanksize, "12ab");
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "1|Oops!/48/Tanksize entries must be a number.");
        for (const auto &step : steps) {
            hand::type(*w.txt_tanksize, step.typed);
            hand::step(w, "ud_tanksize", step.arrow);
            EXPECT_EQ(w.txt_tanksize->text(), step.text);
        }
        hand::type(*w.txt_tanksize, "37.5");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(ofTanks(keeper, "tanksize"), "37.5");
    EXPECT_EQ(keeper.told(), "0");
}

TEST(Tanks, LeavingWithoutOkStoresNothingAndOkKeepsAForeignWaterType)
{
    Keeper keeper;
    keeper.addTank("Reef", "1", "9");
    for (const TankAction &leave : {TankAction([](frm_TankAddNew &) { hand::press(Qt::Key_Escape); }),
                                    TankAction([](frm_TankAddNew &w) { w.close(); })}) {
        const TankAction fillAndGo = [&](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, "Pond");
            mouse::click(w.opt_Pond, QPoint(8, 8));
            hand::type(*w.txt_tanksize, "12ab");
            leave(w);
        };
        inNewTank(fillAndGo);
        inTank("Reef", fillAndGo);
    }
    inTank("Reef", [](frm_TankAddNew &w) { mouse::click(w.cmd_OK); });
    EXPECT_EQ(ofTanks(keeper, "tankname || tanksize || TankWaterType"), "Reef55.09");
    EXPECT_EQ(keeper.told(), "0");
}

TEST(Tanks, NamesTypesAndNotesOfAnyScriptComeBack)
{
    const struct
    {
        const char *name, *option, *notes;
    } tanks[] = {
        {"keeper's tank", "opt_Freshwater", "skimmer; 2 pumps"},
        {"Größtes Becken", "opt_Saltwater", "first line\nsecond \"line\"\n"},
        {"аквариум 水槽", "opt_Reef", "🐟 x 12\n\n' OR '1'='1"},
        {" a pond ", "opt_Pond", " "},
    };
    Keeper keeper;
    for (const auto &tank : tanks)
        inNewTank([&](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, QString::fromUtf8(tank.name));
            hand::type(*w.txt_tanknotes, QString::fromUtf8(tank.notes));
            mouse::click(&control<QRadioButton>(w, tank.option), QPoint(8, 8));
            mouse::click(w.cmd_OK);
        });
    EXPECT_EQ(keeper.stored("SELECT count(DISTINCT tankid) AS n FROM TANKLST", "n"), "4") << "all in one second";
    EXPECT_EQ(ofTanks(keeper, "TankWaterType"), "1,2,3,5");
    keeper.restart();
    for (const auto &tank : tanks)
        inTank(QString::fromUtf8(tank.name), [&](frm_TankAddNew &w) {
            EXPECT_EQ(heldBy(w), QString::fromUtf8(tank.name) + "||55|" + control<QRadioButton>(w, tank.option).text() +
                                     '|' + QString::fromUtf8(tank.notes));
            mouse::click(w.cmd_Cancel);
        });
}

TEST(Tanks, ANameThatIsThereIsRefusedAndWhatWasTypedStands)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    keeper.addTank("Pond", "2");
    const auto nameItReef = [&](frm_TankAddNew &w, const QString &better) {
        hand::type(*w.txt_long_desc, "by the window");
        hand::type(*w.txt_tanksize, "80");
        hand::type(*w.txt_tankname, "Reef");
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "1|/0/That identical tank name already exists. Make your new tank name unique by "
                                 "changing or adding at least one letter.");
        EXPECT_TRUE(heldBy(w).startsWith("Reef|by the window|80|"));
        hand::type(*w.txt_tankname, better);
        mouse::click(w.cmd_OK);
    };
    inNewTank([&](frm_TankAddNew &w) { nameItReef(w, "reef"); }); // another case is another name
    inTank("Pond", [&](frm_TankAddNew &w) { nameItReef(w, "Pond 2"); });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(ofTanks(keeper, "tankid || tankname || tanksize"), "03/14/2026 09:26:53reef80.0,1Reef55.0,2Pond 280.0");
}

TEST(Tanks, DeletingTakesTheTankWithAllItsEntriesOrNothing)
{
    Keeper keeper;
    for (const char *id : {"id of Pond", "id of Reef"}) {
        keeper.addTank(QString(id).mid(6), id);
        for (const char *sql : {"WATERLOG (tankname, logdate, logtime) VALUES (?, '2026-01-02', '10:00:00')",
                                "LIVESTOCK (tankname, dateadded, timeadded) VALUES (?, '2026-01-02', '10:00:00')",
                                "MAINTLOG (mainttankname, maintlogdate) VALUES (?, '2026-01-02')",
                                "MAINTSCHED (SchedTask, schedtankname) VALUES ('Feed ' || ?1, ?1)"})
            keeper.g().gDatabase->Execute(QString("INSERT INTO ") + sql, {QString(id)});
    }
    keeper.g().gDatabase->Execute("CREATE TRIGGER wet BEFORE DELETE ON WATERLOG BEGIN SELECT RAISE(ABORT, 'wet'); END");
    const auto rows = [&] {
        QString counts;
        for (const char *table : {"TANKLST WHERE tankid", "WATERLOG WHERE tankname", "LIVESTOCK WHERE tankname",
                                  "MAINTLOG WHERE mainttankname"})
            for (const char *id : {" = 'id of Pond'", " = 'id of Reef'"})
                counts += QString::number(keeper.count(QString(table) + id));
        return counts;
    };
    const QString question = "1|Are you sure.../289/Are you sure you want to delete the tank you named Reef?  Deleting "
                             "this entry will delete ALL entries for this tank in EVERY logbook - Maintenence, Water "
                             "Quality, and Livestock. (Remember, you CANNOT \"undo\" a delete!)";
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &list) {
        clickTankAnd(list, 1, list.cmd_DeleteTank); // answered by the default button, which is Cancel
        EXPECT_EQ(keeper.told(), question);
        EXPECT_EQ(rows(), "11111111");

        keeper.doors.answers = {MsgBoxAnswer::OK, MsgBoxAnswer::OK};
        clickTankAnd(list, 1, list.cmd_DeleteTank);
        EXPECT_EQ(keeper.told(), question + "|failure 3421"); // in the fourth of five statements
        EXPECT_EQ(rows(), "11111111");

        keeper.g().gDatabase->Execute("DROP TRIGGER wet");
        clickTankAnd(list, 1, list.cmd_DeleteTank);
        EXPECT_EQ(keeper.told(), question + "|Tank Deleted/64/The tank named Reef was successfully deleted.");
        EXPECT_EQ(rows(), "10101010");
        EXPECT_EQ(listed(list), "Pond");
        EXPECT_EQ(keeper.g().gTankName + keeper.g().gTankId, "");
        EXPECT_EQ(keeper.count("MAINTSCHED"), 2);
        mouse::click(list.cmd_ok);
    });
    Form<frm_TankMaint>().Show_List();
}
