// A disk that fails at each write and sync in turn: the right failure, nothing half written, and what was typed can be
// stored once the disk is well again.
#include <QDir>
#include <sqlite3.h>

#include "FaultVfs.h"
#include "store/NewDatabase.h"
#include "StoreFixture.h"

namespace {

class FaultsTest : public StoreTest
{
protected:
    FaultsTest()
    {
        db->Close();
        addRows();
        open();
    }
    void addRows()
    {
        open();
        for (const int day : {1, 2, 3})
            addWater(day, day);
        db->Close();
    }
    /// Runs the work with the fault at each place in turn until it comes through; `check` looks at the state after each
    /// failure. Returns how many places there were.
    int sweep(int code, bool forEver, const std::function<void()> &work, const std::function<void()> &check)
    {
        const int expected = code == SQLITE_FULL ? int(Failure::DiskFull) : int(Failure::DeviceError);
        for (int place = 0; place < 500; ++place) {
            faults.plan({code, place, forEver});
            const int number = numberOf(work);
            const bool struck = faults.hasStruck();
            faults.plan({});
            if (!struck)
                return number == 0 ? place : -1;
            // A sync tells of no full disk, and undoing may fail in its own way; what failed first is one of the two.
            EXPECT_TRUE(number == expected || number == int(Failure::DeviceError)) << number << " at place " << place;
            check();
        }
        return -1;
    }
    QString integrity() { return OtherProgram(path()).run("PRAGMA integrity_check"); }

    FaultVfs faults; // installed before the database is opened again
};

TEST_F(FaultsTest, AnEntryIsWrittenWholeOrNotAtAll)
{
    int day = 10;
    for (const auto &[code, forEver] : diskFaults) {
        const qsizetype before = count("WATERLOG");
        Recordset rows =
            adding("WATERLOG", {{"tankname", QString("T")}, {"logdate", QDate(2003, 1, day)}, {"ph", 8.0}});
        ++day;
        const int places = sweep(
            code, forEver, [&] { rows.Update(); },
            [&] {
                EXPECT_TRUE(rows.isEditing());
                EXPECT_EQ(count("WATERLOG"), before);
                EXPECT_EQ(integrity(), "ok");
            });
        EXPECT_GT(places, 3);
        EXPECT_EQ(count("WATERLOG"), before + 1);
    }
}

TEST_F(FaultsTest, ANewDatabaseIsCompleteOrNotThere)
{
    const QString fresh = path("new/OM.MDB");
    ASSERT_TRUE(QDir(folder.path()).mkdir("new"));
    const int places = sweep(
        SQLITE_FULL, true, [&] { CreateDatabase(fresh); }, [&] { EXPECT_TRUE(contentOf(path("new")).empty()); });
    EXPECT_GT(places, 10);
    EXPECT_EQ(contentOf(path("new")).size(), 1u);
    EXPECT_NO_THROW(Database::OpenDatabase(fresh));
}

} // namespace
