// Kills the program while a keeper works in it. Everything that a window reported as saved must be in the file, and
// nothing may be there in part. By default it kills twenty times; omk_tests_faults --kills=600 is the long run, whose
// table is in docs/RELIABILITY.md.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include <sqlite3.h>

#include "Play.h"
#include "store/FaultVfs.h"

namespace {

int killsWanted()
{
    for (const QString &argument : QCoreApplication::arguments())
        if (argument.startsWith("--kills="))
            return argument.mid(8).toInt();
    return 20;
}

struct Way
{
    const char *name;
    Death death; ///< None: killed at a random time
    int cutOff = 0, saved = 0, lost = 0;
};

struct Kill : testing::Test
{
    static constexpr int mostMoves = 40;

    Kill() { keeper.g().gDatabase.reset(); }

    /// One round: a child process plays until it is killed, and then the file is checked.
    void runRound(Way &way, unsigned seed)
    {
        prepareTanks();
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0)
            playUntilKilled(ends[1], seed, way.death);
        ::close(ends[1]);
        int saved = 0;
        for (char c; ::read(ends[0], &c, 1) == 1;)
            ++saved;
        ::close(ends[0]);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << "seed " << seed;
        way.cutOff += WIFSIGNALED(status);
        way.saved += saved;
        way.lost += !checkFile(seed, saved);
        m_start = m_start.addDays(1);
    }

    void prepareTanks()
    {
        const auto database = Database::OpenDatabase(keeper.databaseFile());
        for (const QString tank : {"A", "B"})
            if (m_book.emplace(keyOf('T', tank, {}), 0).second)
                database->Execute("INSERT INTO TANKLST (tankname, tankid, TankWaterType) VALUES (?, ?, '2')",
                                  {tank, tank});
    }

    /// Runs in the child: plays through the windows, and reports each move that a window has confirmed.
    [[noreturn]] void playUntilKilled(int said, unsigned seed, Death death)
    {
        keeper.restart();
        Player player(keeper);
        std::minstd_rand moment(seed), random(seed);
        faults.plan({.after = int(moment() % 150), .death = death});
        if (death == Death::None)
            ::ualarm(1 + useconds_t(moment() % 300'000), 0); // the program does not catch this signal
        for (int n = 0; n < mostMoves; ++n) {
            keeper.doors.clock = m_start.addSecs(61 * n);
            const Move move = nextMove(m_book, random, keeper.doors.clock);
            player.play(move);
            note(m_book, move);
            const bool good = keeper.doors.failures.empty() && !HasFailure();
            if (!good || ::write(said, "x", 1) != 1)
                ::_exit(7);
        }
        ::_exit(0);
    }

    /// Checks that the file is undamaged and holds all confirmed moves, perhaps the one in progress, and nothing else.
    bool checkFile(unsigned seed, int saved)
    {
        const auto database = Database::OpenDatabase(keeper.databaseFile());
        EXPECT_EQ(database->OpenRecordset("PRAGMA integrity_check")["integrity_check"].text(), "ok");
        std::minstd_rand random(seed);
        const auto playOn = [&](int n) { note(m_book, nextMove(m_book, random, m_start.addSecs(61 * n))); };
        for (int n = 0; n < saved; ++n)
            playOn(n);
        const Book found = bookOf(*database);
        bool good = found == m_book;
        if (!good && saved < mostMoves) {
            playOn(saved);
            good = found == m_book;
        }
        EXPECT_TRUE(good) << "seed " << seed << ", " << saved << " moves saved";
        m_book = found;
        return good;
    }

    FaultVfs faults;
    Keeper keeper;
    Book m_book;
    QDateTime m_start{QDate(2026, 3, 14), QTime(8, 0)};
};

TEST_F(Kill, LosesNothingThatWasSaved)
{
    Way ways[] = {
        {"killed at a random time", Death::None},
        {"killed during a write or sync of the file", Death::Killed},
        {"power cut during a write or sync: only pieces of what was not synced are on the disk", Death::PowerCut}};
    const int wanted = killsWanted();
    unsigned seed = 1;
    for (int kills = 0; kills < wanted && !HasFatalFailure(); ++seed) {
        Way &way = ways[seed % std::size(ways)];
        const int before = way.cutOff;
        runRound(way, seed);
        kills += way.cutOff - before;
        ASSERT_LT(seed, unsigned(3 * wanted)) << "the child is not killed";
    }
    std::printf("| What happened | Times | Moves reported as saved | Lost or incomplete |\n|---|---|---|---|\n");
    for (const Way &way : ways)
        std::printf("| %s | %d | %d | %d |\n", way.name, way.cutOff, way.saved, way.lost);
}

} // namespace
