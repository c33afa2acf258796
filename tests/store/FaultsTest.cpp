// A disk that fails at each write and sync in turn: the right failure, nothing half written, and what was typed can be
// stored once the disk is well again.
#include "FaultVfs.h"
#include "StoreFixture.h"

namespace {

struct FaultsTest : StoreTest
{
    FaultsTest() { open(); }

    /// Runs the work with the fault at each place in turn until it comes through; `check` looks at the state after each
    /// failure. Returns how many places there were.
    int sweep(FaultPlan plan, const std::function<void()> &work, const std::function<void()> &check)
    {
        const int expected = plan.code == SQLITE_FULL ? int(Failure::DiskFull) : int(Failure::DeviceError);
        for (; plan.after < 500; ++plan.after) {
            faults.plan(plan);
            const int number = numberOf(work);
            const bool struck = faults.hasStruck();
            faults.plan({});
            if (!struck)
                return number == 0 ? plan.after : -1;
            // A sync tells of no full disk, and undoing may fail in its own way; what failed first is one of the two.
            EXPECT_TRUE(number == expected || number == int(Failure::DeviceError)) << number << " at " << plan.after;
            check();
        }
        return -1;
    }

    FaultVfs faults; // installed before the database is opened again
};

TEST_F(FaultsTest, AnEntryIsWrittenWholeOrNotAtAll)
{
    int day = 0;
    for (const auto &[code, forEver] : diskFaults) {
        Recordset rows = addingWater(++day, 8);
        const auto nothingIsWritten = [&] {
            EXPECT_TRUE(rows.isEditing());
            EXPECT_EQ(count("WATERLOG"), day - 1);
            EXPECT_EQ(asked("PRAGMA integrity_check"), "ok");
        };
        EXPECT_GT(sweep(
                      {code, 0, forEver}, [&] { rows.Update(); }, nothingIsWritten),
                  3);
        EXPECT_EQ(count("WATERLOG"), day);
    }
}

TEST_F(FaultsTest, ANewDatabaseIsCompleteOrNotThere)
{
    const QString fresh = path("new/OM.MDB");
    ASSERT_TRUE(QDir(folder.path()).mkdir("new"));
    const auto nothingIsThere = [this] { EXPECT_TRUE(contentOf(path("new")).empty()); };
    EXPECT_GT(sweep(
                  {SQLITE_FULL, 0, true}, [&] { CreateDatabase(fresh); }, nothingIsThere),
              10);
    EXPECT_EQ(contentOf(path("new")).size(), 1u);
    EXPECT_NO_THROW(Database::OpenDatabase(fresh));
}

} // namespace
