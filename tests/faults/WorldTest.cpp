// Tests a running program with a full disk, a locked or missing file, and settings that cannot be read or written. Each
// entry must be refused as a whole and with a message, and can be saved as typed when the cause is gone.
#include "Play.h"
#include "store/FaultVfs.h"
#include "store/StoreFixture.h"

struct World : testing::Test
{
    World()
    {
        Database::setBusyTimeout(10);
        keeper.restart();
        player = std::make_unique<Player>(keeper);
    }
    ~World() override { Database::setBusyTimeout(5000); }

    Book file() { return bookOf(*Database::OpenDatabase(keeper.databaseFile())); }

    /// Plays a move that must be refused after `spoil`, and confirms it again after `mend`.
    void expectRefusedThenSaved(const Move &move, const std::function<void()> &spoil, const std::function<void()> &mend)
    {
        SCOPED_TRACE(move.key.toStdString() + " move " + std::to_string(move.what));
        Book book = file();
        keeper.told();
        const auto expectRefused = [&] {
            mend();
            EXPECT_TRUE(!keeper.doors.failures.empty() || !keeper.doors.boxes.empty()) << "nothing was told";
            keeper.told();
            EXPECT_EQ(file(), book);
        };
        player->confirm = [&](QPushButton &ok) {
            spoil();
            ok.click();
            ASSERT_TRUE(ok.isVisible()) << "the window went with what was typed";
            expectRefused();
            ok.click();
        };
        if (move.what == Move::Remove || move.what == Move::RemoveTank) {
            spoil();
            player->play(move);
            expectRefused();
        }
        player->play(move);
        note(book, move);
        EXPECT_EQ(file(), book);
    }

    /// Plays every kind of move, each refused after `spoil` and then saved after `mend`.
    void playAll(const std::function<void()> &spoil, const std::function<void()> &mend)
    {
        for (const char *tank : {"A", "B"})
            if (keeper.count(QString("TANKLST WHERE tankname = '%1'").arg(tank)) == 0)
                keeper.addTank(tank, tank);
        Form<frm_Waterlog>().Refresh_Treeview();
        const QString moment = keeper.doors.clock.toString(momentPicture);
        const QString water = keyOf('W', "A", moment), animal = keyOf('L', "A", moment), work = keyOf('M', "A", moment);
        for (const auto &[what, number] : {std::pair{Move::Add, 5}, {Move::Change, 7}})
            for (const QString &key : {water, animal, work})
                expectRefusedThenSaved({what, key, number}, spoil, mend);
        expectRefusedThenSaved({Move::MoveTank, animal, 0, "B"}, spoil, mend);
        expectRefusedThenSaved({Move::Remove, water}, spoil, mend);
        expectRefusedThenSaved({Move::Remove, work}, spoil, mend);
        expectRefusedThenSaved({Move::RemoveTank, keyOf('T', "B", {})}, spoil, mend); // the tank with its animal
    }

    FaultVfs faults;
    Keeper keeper;
    std::unique_ptr<Player> player;
};

TEST_F(World, AFullOrBrokenDisk)
{
    for (const int code : {SQLITE_FULL, SQLITE_IOERR_WRITE})
        for (int place = 0; place < 6; ++place) // each write and sync of an entry
            playAll([&] { faults.plan({code, place, true}); }, [this] { faults.plan({}); });
}

TEST_F(World, AnotherProgramHoldsTheFile)
{
    OtherProgram other(keeper.databaseFile());
    playAll([&] { EXPECT_EQ(other.run("BEGIN IMMEDIATE"), ""); }, [&] { other.run("ROLLBACK"); });
}

TEST_F(World, TheFileIsGone)
{
    const QString away = keeper.folder.filePath("away.MDB");
    playAll([&] { EXPECT_TRUE(QFile::rename(keeper.databaseFile(), away)); },
            [&] { EXPECT_TRUE(QFile::rename(away, keeper.databaseFile())); });
}

TEST_F(World, TheSettingsCannotBeReadOrWritten)
{
    const QString garbage = keeper.folder.filePath("garbage.ini");
    writeFile(garbage, "[SETTINGS\n\xff\xfe=\n%%%");
    keeper.addTank("A", "A");
    for (const QString &settings : {garbage, keeper.folder.path()}) { // a folder cannot serve as the file
        player.reset();
        ScriptedDoors doors(settings);
        keeper.restart();
        player = std::make_unique<Player>(keeper);
        EXPECT_TRUE(doors.failures.empty());
        EXPECT_EQ(doors.told().contains("settings could not be written"), settings != garbage);
    }
}
