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
    void move(const std::function<void(frm_LivesMove &)> &action) { give("moveentries", 1, action); }
    void moveTo(frm_LivesMove &w, const QString &tank)
    {
        QListWidget &tanks = *w.lst_tanklist;
        mouse::click(tanks.viewport(), tanks.visualItemRect(tanks.findItems(tank, Qt::MatchExactly).at(0)).center());
        mouse::click(w.cmd_ok);
    }
    QString entryIn(const char *tankId)
    {
        return keeper.stored(QString("dateadded || ' ' || timeadded || ' ' || quantity || Comment AS x FROM LIVESTOCK "
                                     "WHERE tankname = '%1'")
                                 .arg(tankId));
    }
};

TEST_F(Move, GoesNowhereWithoutATankOrAfterCancelOrWhenTheEntryIsGone)
{
    move([&](frm_LivesMove &w) {
        mouse::click(w.cmd_ok);
        EXPECT_EQ(keeper.told(), "1|Note!/64/You must first select a tank entry to move your animal to.");
        w.lst_tanklist->setCurrentRow(0);
        mouse::click(w.cmd_Cancel);
    });
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
    move([&](frm_LivesMove &w) {
        for (const char *tank : {"Bowl", "Pond"}) {
            moveTo(w, tank);
            EXPECT_TRUE(keeper.told().startsWith("1|Oops!/48/That tank already has an entry for this animal")) << tank;
            mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        }
        moveTo(w, "Same"); // the present date was refused and must be forgotten
    });
    EXPECT_EQ(column(1), "Crab");
    EXPECT_EQ(entryIn("Same"), "2026-04-05 09:30:00 2.0old");
    move([&](frm_LivesMove &w) { moveTo(w, "Marsh"); });
    EXPECT_EQ(entryIn("k1"), "2035-05-25 21:05:07 2.0old");
    hand::clickTank(*logbook, "Marsh");
    move([&](frm_LivesMove &w) {
        mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        keeper.doors.clock = {QDate(2026, 3, 14), QTime(23, 59, 59)};
        keeper.doors.secondsAReading = 1;
        moveTo(w, "Reef");
    });
    EXPECT_EQ(entryIn("r1"), "2026-03-14 23:59:59 2.0old") << "now is one moment";
}
