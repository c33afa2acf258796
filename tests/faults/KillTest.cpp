// Kills the program while a keeper works in it. Everything that a window reported as saved must be in the file, and
// nothing may be there in part. By default it kills twenty times; omk_tests_faults --kills=600 is the long run, whose
// table is in docs/RELIABILITY.md.
#include <sys/mman.h>

#include <cstdio>
#include <random>

#include "Bench.h"

namespace {

struct Way
{
    const char *name;
    Death death; ///< None: killed at a random time
    int kills = 0, saved = 0;
};

class Kill : public testing::Test, protected Bench
{
protected:
    static constexpr int mostMoves = 40;

    Kill()
    {
        // Animals of one moment could not be moved to the same tank.
        keeper.g().gDatabase->Execute("DELETE FROM LIVESTOCK");
        keeper.g().gDatabase.reset(); // each child process opens its own
    }

    /// One round: a child process plays until it is killed. The file must then be as after the last confirmed move, or
    /// after the move in progress, when the same moves are played without a kill. The next round continues with it.
    void runRound(Way &way, unsigned seed)
    {
        keeper.doors.clock = keeper.doors.clock.addDays(1);
        const QByteArray before = contentOf(keeper.folder.path())["OM.MDB"];
        std::minstd_rand random(seed);
        const useconds_t alarm = way.death == Death::None ? 1 + useconds_t(random() % 999'999) : 0;
        const FaultPlan plan{.after = int(random() % 150), .death = way.death};
        way.kills += isKilled(seed, mostMoves, plan, alarm);
        const int saved = *m_saved;
        const QString found = state();
        const QByteArray left = contentOf(keeper.folder.path())["OM.MDB"];
        bool isExpected = false;
        for (int moves = saved; !isExpected && moves <= std::min(saved + 1, mostMoves) && !HasFailure(); ++moves) {
            writeFile(keeper.databaseFile(), before);
            isKilled(seed, moves, {}, 0);
            isExpected = state() == found;
        }
        EXPECT_TRUE(isExpected) << "seed " << seed << ", " << saved << " moves saved:" << found.toStdString();
        writeFile(keeper.databaseFile(), left);
        way.saved += saved;
    }

private:
    /// Plays moves in a child process, which counts those that a window has confirmed. Returns whether it was killed.
    bool isKilled(unsigned seed, int moves, const FaultPlan &plan, useconds_t alarm)
    {
        *m_saved = 0;
        return signalThatEnds([&] {
                   start(WaterTab);
                   std::minstd_rand random(seed);
                   faults.plan(plan);
                   ::ualarm(alarm, 0); // the program does not catch this signal
                   for (; *m_saved < moves; ++*m_saved) {
                       playMove(random);
                       ASSERT_TRUE(keeper.doors.failures.empty() && !HasFailure());
                   }
               }) != 0;
    }
    /// Plays a scene at a tank and an entry, all chosen at random. Only new tanks are deleted.
    void playMove(std::minstd_rand &random)
    {
        keeper.doors.clock = keeper.doors.clock.addSecs(61);
        const Scene *scene = &logbookScenes[random() % std::size(logbookScenes)];
        const QTreeWidgetItem &tanks = *logbook->TreeView1->topLevelItem(0);
        const QString tank = tanks.child(int(random()) % tanks.childCount())->text(0);
        hand::clickTank(*logbook, tank);
        logbook->tab_logtype->setCurrentIndex(scene->tab);
        if (list().Count() == 0 || (scene->name == QString("DeleteTank") && !tank.startsWith("New")))
            scene = &logbookScenes[scene->tab];
        else
            list().Select(1 + int(random()) % list().Count());
        scene->play(*this);
    }
    QString state() const
    {
        const auto database = Database::OpenDatabase(keeper.databaseFile());
        EXPECT_EQ(database->OpenRecordset("PRAGMA integrity_check")["integrity_check"].text(), "ok");
        return rowsOf(*database);
    }

    /// Shared with the child processes.
    int *const m_saved =
        static_cast<int *>(::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
};

TEST_F(Kill, LosesNothingThatWasSaved)
{
    Way ways[] = {
        {"killed at a random time", Death::None},
        {"killed during a write or sync of the file", Death::Killed},
        {"power cut during a write or sync: only pieces of what was not synced are on the disk", Death::PowerCut}};
    const int wanted = QCoreApplication::arguments().filter("--kills=").value(0, "--kills=20").mid(8).toInt();
    unsigned seed = 1;
    while (ways[0].kills + ways[1].kills + ways[2].kills < wanted && !HasFailure()) {
        runRound(ways[seed % 3], seed);
        ASSERT_LT(++seed, unsigned(3 * wanted)) << "the child is not killed";
    }
    for (const Way &way : ways)
        std::printf("| %s | %d, with %d moves reported as saved |\n", way.name, way.kills, way.saved);
}

} // namespace
