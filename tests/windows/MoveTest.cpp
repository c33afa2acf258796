#include "Desk.h"
#include "windows/logbook/frm_LivesMove.h"

/// "Reef" has a tang and a crab.
class Move : public Desk
{
protected:
    Move() : Desk(LivestockTab)
    {
        add("r1", "2026-04-05 09:30:00", "'Tang', 2, 'old'");
        add("r1", "2035-05-25 21:05:07", "'Crab', 2, 'old'"); // two digits do not tell this year
        open("Reef");
    }
    void add(const char *tankId, const char *moment, const char *values)
    {
        addEntry(LivestockTab, tankId, moment, "animalname, quantity, Comment", values);
    }
    void move(int row, const std::function<void(frm_LivesMove &)> &action) { give("moveentries", row, action); }
    void clickTank(frm_LivesMove &w, const QString &tank)
    {
        QListWidget &tanks = *w.lst_tanklist;
        mouse::click(tanks.viewport(), tanks.visualItemRect(tanks.findItems(tank, Qt::MatchExactly).at(0)).center());
    }
};

TEST_F(Move, GoesNowhereWithoutATankOrAfterCancelOrWhenTheEntryIsGone)
{
    move(1, [&](frm_LivesMove &w) {
        mouse::click(w.cmd_ok);
        EXPECT_EQ(keeper.told(), "1|Note!/64/You must first select a tank entry to move your animal to.");
        clickTank(w, "Bowl");
        mouse::click(w.cmd_Cancel);
    });
    EXPECT_TRUE(keeper.g().livesMove.MoveCancelled);
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE tankname = 'r1'"), 2);
    execute("DELETE FROM LIVESTOCK WHERE animalname = 'Tang'");
    hand::clickRow(list(), 1);
    push("moveentries");
    EXPECT_EQ(keeper.told(), "0|/0/entry not found to be moved");
}

TEST_F(Move, AnEntryOfTheTargetInThatSecondStandsInTheWayUntilAnotherTankIsChosen)
{
    add("b1", "2026-04-05 09:30:00", "'Tang', 2, 'old'");
    add("p1", "2026-03-14 09:26:53", "'Tang', 2, 'old'"); // at the present moment
    move(1, [&](frm_LivesMove &w) {
        const auto tryTank = [&](const char *tank) {
            clickTank(w, tank);
            mouse::click(w.cmd_ok);
            EXPECT_TRUE(keeper.told().startsWith("1|Oops!/48/That tank already has an entry for this animal")) << tank;
        };
        tryTank("Bowl");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        tryTank("Pond");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8)); // the present date is refused and must be forgotten
        clickTank(w, "Same");
        mouse::click(w.cmd_ok);
    });
    EXPECT_EQ(column(1), "Crab");
    move(1, [&](frm_LivesMove &w) {
        clickTank(w, "Marsh");
        mouse::click(w.cmd_ok);
    });
    EXPECT_EQ(keeper.stored("dateadded || '' AS x FROM LIVESTOCK WHERE tankname = 'k1'"), "2035-05-25");
    EXPECT_EQ(
        keeper.stored("dateadded || timeadded || quantity || Comment AS x FROM LIVESTOCK WHERE tankname = 'Same'"),
        "2026-04-0509:30:002.0old");
}

TEST_F(Move, TheFirstDownChoosesTheFirstTankAndNowIsOneMoment)
{
    move(1, [&](frm_LivesMove &w) {
        mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        w.lst_tanklist->setFocus();
        hand::press(Qt::Key_Down);
        ASSERT_EQ(w.lst_tanklist->selectedItems().size(), 1);
        EXPECT_EQ(w.lst_tanklist->selectedItems()[0]->text(), "Bowl");
        keeper.doors.clock = {QDate(2026, 3, 14), QTime(23, 59, 59)};
        keeper.doors.secondsAReading = 1;
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(keeper.stored("dateadded || ' ' || timeadded AS x FROM LIVESTOCK WHERE tankname = 'b1'"),
              "2026-03-14 23:59:59");
}
