#include <QCheckBox>
#include <QListWidget>

#include "Desk.h"
#include "logbook/frm_LivesMove.h"

/// "Reef" has a tang of April and a crab of May.
class Move : public Desk<frm_LivesMove>
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
    void move(int row, const Action &action) { give("moveentries", row, action); }
    void clickTank(frm_LivesMove &w, const QString &tank, bool twice = false)
    {
        QListWidget &tanks = *w.lst_tanklist;
        const QPoint place = tanks.visualItemRect(tanks.findItems(tank, Qt::MatchExactly).at(0)).center();
        twice ? mouse::doubleClick(tanks.viewport(), place) : mouse::click(tanks.viewport(), place);
    }
    /// Every animal with its tank, date and time.
    QString animals()
    {
        return stored(
            "group_concat(a, '|') AS x FROM (SELECT animalname || ' ' || tankname || ' ' || dateadded || ' ' || "
            "timeadded AS a FROM LIVESTOCK WHERE quantity = 2 AND Comment = 'old' ORDER BY a)");
    }
};

namespace {

const char *const notMoved = "Crab r1 2026-05-25 21:05:07|Tang r1 2026-04-05 09:30:00";

} // namespace

TEST_F(Move, GoesNowhereWithoutATankOrAfterCancel)
{
    move(1, [&](frm_LivesMove &w) {
        mouse::click(w.cmd_ok);
        EXPECT_EQ(told(1), "64 Note!: You must first select a tank entry to move your animal to.");
        EXPECT_TRUE(w.isVisible());
        clickTank(w, "Bowl");
        mouse::click(w.cmd_Cancel);
    });
    EXPECT_TRUE(keeper.g().livesMove.MoveCancelled);
    EXPECT_EQ(animals(), notMoved);
    EXPECT_EQ(column(1), "Tang Crab");
}

TEST_F(Move, AnEntryGoesWithItsDateOrWithTheDateOfNow)
{
    const struct
    {
        const char *tank;
        bool now, twice;
        const char *animals, *left; ///< in the file, and in the list of "Reef"
    } moves[] = {
        {"Bowl", false, false, "Crab r1 2026-05-25 21:05:07|Tang b1 2026-04-05 09:30:00", "Crab"},
        {"Same", true, true, "Crab r1 2026-05-25 21:05:07|Tang Same 2026-03-04 15:09:26", "Crab"},
        {"Reef", true, false, "Crab r1 2026-05-25 21:05:07|Tang r1 2026-03-04 15:09:26", "Tang Crab"},
    };
    keeper.doors.clock = QDateTime(QDate(2026, 3, 4), QTime(15, 9, 26));
    startWith("DDMMYY", ".");
    for (const auto &row : moves) {
        SCOPED_TRACE(row.tank);
        move(1, [&](frm_LivesMove &w) {
            if (row.now)
                mouse::click(w.chk_ChangeDate, QPoint(8, 8));
            clickTank(w, row.tank, row.twice);
            if (!row.twice)
                mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(animals(), row.animals);
        EXPECT_EQ(column(1), row.left);
        execute("UPDATE LIVESTOCK SET tankname = 'r1', dateadded = '2026-04-05', timeadded = '09:30:00' "
                "WHERE animalname = 'Tang'");
        open("Reef");
    }
    EXPECT_EQ(told(0), "");
}

TEST_F(Move, AnEntryOfTheTargetInThatSecondStandsInTheWayUntilTheDateChanges)
{
    insert("b1", "2026-04-05", "09:30:00", "Tang");
    insert("p1", "2026-03-14", "09:26:53", "Tang"); // of now
    const QString refusal = "Oops!: That tank already has an entry for this animal at the same date and time. Let the "
                            "date and time change to \"Now\", or choose another tank.";
    move(1, [&](frm_LivesMove &w) {
        const auto tryTank = [&](const char *tank) {
            clickTank(w, tank);
            mouse::click(w.cmd_ok);
            EXPECT_EQ(told(1), refusal) << tank;
            EXPECT_TRUE(w.isVisible());
        };
        tryTank("Bowl");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        tryTank("Pond");
        mouse::click(w.chk_ChangeDate, QPoint(8, 8)); // the date of now was not to be, and is forgotten
        clickTank(w, "Same");
        mouse::click(w.cmd_ok);
    });
    EXPECT_EQ(column(1), "Crab");
    EXPECT_EQ(stored("dateadded || timeadded AS x FROM LIVESTOCK WHERE tankname = 'Same'"), "2026-04-0509:30:00");
}

TEST_F(Move, AnEntryThatIsGoneIsTold)
{
    execute("DELETE FROM LIVESTOCK WHERE animalname = 'Tang'");
    hand::clickRow(list(), 1);
    push("moveentries");
    EXPECT_EQ(told(0), "0 : entry not found to be moved");
    EXPECT_FALSE(Forms::current().loaded<frm_LivesMove>());
}
