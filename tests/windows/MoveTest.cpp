#include <QCheckBox>
#include <QListWidget>

#include "Desk.h"
#include "logbook/frm_LivesMove.h"

/// "Reef" has a tang of April and a crab of May.
class Move : public Desk
{
protected:
    Move() : Desk(LivestockTab)
    {
        insert("r1", "2026-04-05", "09:30:00", "Tang");
        insert("r1", "2026-05-25", "21:05:07", "Crab");
        open("Reef");
    }
    void insert(const char *tank, const char *date, const char *time, const char *animal)
    {
        execute(QString("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Comment) "
                        "VALUES ('%1', '%2', '%3', '%4', 2, 'old')")
                    .arg(tank, date, time, animal));
    }
    void move(int row, const std::function<void(frm_LivesMove &)> &action) { give("moveentries", row, action); }
    void clickTank(frm_LivesMove &w, const QString &tank)
    {
        QListWidget &tanks = *w.lst_tanklist;
        mouse::click(tanks.viewport(), tanks.visualItemRect(tanks.findItems(tank, Qt::MatchExactly).at(0)).center());
    }
    /// Every animal with its tank, date and time.
    QString animals()
    {
        return keeper.stored(
            "group_concat(a, '|') AS x FROM (SELECT animalname || ' ' || tankname || ' ' || dateadded || ' ' || "
            "timeadded AS a FROM LIVESTOCK WHERE quantity = 2 AND Comment = 'old' ORDER BY a)");
    }
};

TEST_F(Move, GoesNowhereWithoutATankOrAfterCancelOrWhenTheEntryIsGone)
{
    const QString before = animals();
    move(1, [&](frm_LivesMove &w) {
        mouse::click(w.cmd_ok);
        EXPECT_EQ(keeper.told(), "1|Note!/64/You must first select a tank entry to move your animal to.");
        clickTank(w, "Bowl");
        mouse::click(w.cmd_Cancel);
    });
    EXPECT_TRUE(keeper.g().livesMove.MoveCancelled);
    EXPECT_EQ(animals(), before);
    execute("DELETE FROM LIVESTOCK WHERE animalname = 'Tang'");
    hand::clickRow(list(), 1);
    push("moveentries");
    EXPECT_EQ(keeper.told(), "0|/0/entry not found to be moved");
}

TEST_F(Move, AnEntryOfTheTargetInThatSecondStandsInTheWayUntilAnotherTankIsChosen)
{
    insert("b1", "2026-04-05", "09:30:00", "Tang");
    insert("p1", "2026-03-14", "09:26:53", "Tang"); // of now
    move(1, [&](frm_LivesMove &w) {
        const auto tryTank = [&](const char *tank) {
            clickTank(w, tank);
            mouse::click(w.cmd_ok);
            EXPECT_TRUE(keeper.told().startsWith("1|Oops!/48/That tank already has an entry for this animal")) << tank;
        };
        tryTank("Bowl");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        tryTank("Pond");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8)); // the date of now was not to be, and is forgotten
        clickTank(w, "Same");
        mouse::click(w.cmd_ok);
    });
    EXPECT_EQ(column(1), "Crab");
    EXPECT_EQ(keeper.stored("dateadded || timeadded AS x FROM LIVESTOCK WHERE tankname = 'Same'"),
              "2026-04-0509:30:00");
}
