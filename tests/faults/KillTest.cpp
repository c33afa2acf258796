// The program killed while a keeper works in it: what a window said was saved is in the file, and nothing half. Twenty
// times where nothing is said; omk_tests_faults --kills=600 is the long run, whose table docs/RELIABILITY.md shows.
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

#include <sqlite3.h>

#include "Play.h"
#include "store/FaultVfs.h"

namespace {

using Clock = std::chrono::steady_clock;

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
    Death death; ///< None: by kill -9 from outside, at a moment of the clock
    int cutOff = 0, saved = 0, lost = 0;
};

class Kill : public ::testing::Test
{
protected:
    static constexpr int mostMoves = 40;

    Kill() { keeper.g().gDatabase.reset(); }

    /// One round: a child plays on, is killed, and the file is looked at.
    void runRound(Way &way, unsigned seed)
    {
        prepareTanks();
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        std::minstd_rand moment(seed);
        const pid_t child = ::fork();
        if (child == 0)
            playUntilKilled(ends[1], seed, {.after = int(moment() % 150), .death = way.death});
        ::close(ends[1]);
        int saved = way.death == Death::None ? waitAtRandom(ends[0], moment) : 0;
        if (way.death == Death::None)
            ::kill(child, SIGKILL);
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

private:
    void prepareTanks()
    {
        const auto database = Database::OpenDatabase(keeper.databaseFile());
        for (const QString tank : {"A", "B"})
            if (m_book.emplace(keyOf('T', tank, {}), 0).second)
                database->Execute("INSERT INTO TANKLST (tankname, tankid, TankWaterType) VALUES (?, ?, '2')",
                                  {tank, tank});
    }

    /// The child: plays through the windows, and says so after each move that a window has confirmed.
    [[noreturn]] void playUntilKilled(int said, unsigned seed, const FaultPlan &plan)
    {
        keeper.restart();
        Player player(keeper);
        faults.plan(plan);
        std::minstd_rand random(seed);
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

    /// Waits for some moves, and then for part of the next; returns how many were said to be saved.
    int waitAtRandom(int said, std::minstd_rand &random)
    {
        int saved = 0;
        for (int wanted = int(random() % 8); saved < wanted;) {
            char c;
            if (::read(said, &c, 1) != 1)
                return saved;
            ++saved;
        }
        const auto end = Clock::now() + std::chrono::microseconds(random() % 60'000);
        pollfd pipe{said, POLLIN, 0};
        for (char c; Clock::now() < end;)
            if (::poll(&pipe, 1, 1) > 0 && ::read(said, &c, 1) == 1)
                ++saved;
        return saved;
    }

    /// The file is whole, and holds all moves that were confirmed, and perhaps the one that was on its way, and no
    /// more.
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
        {"killed from outside, at a moment of the clock", Death::None},
        {"killed in a write or sync of the file", Death::Killed},
        {"power cut in a write or sync: of what was not synced only pieces are on the disk", Death::PowerCut}};
    const int wanted = killsWanted();
    unsigned seed = 1;
    for (int kills = 0; kills < wanted && !HasFatalFailure(); ++seed) {
        Way &way = ways[seed % std::size(ways)];
        const int before = way.cutOff;
        runRound(way, seed);
        kills += way.cutOff - before;
        ASSERT_LT(seed, unsigned(3 * wanted)) << "the child is not killed";
    }
    std::printf("| What happened | Times | Moves said to be saved | Lost or half |\n|---|---|---|---|\n");
    for (const Way &way : ways)
        std::printf("| %s | %d | %d | %d |\n", way.name, way.cutOff, way.saved, way.lost);
}

} // namespace
