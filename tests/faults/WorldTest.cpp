// What the world does to a running program: no room on the disk, the file locked, gone or read-only, settings that
// cannot be read. Each entry is refused with a word about it, whole, and can be saved as typed once the world is
// mended.
#include <sys/stat.h>

#include <QFile>

#include "platform/RuntimeFailure.h"
#include "Play.h"
#include "store/FaultVfs.h"

namespace {

class World : public ::testing::Test
{
protected:
    World()
    {
        Database::setBusyTimeout(10);
        keeper.restart();
        player = std::make_unique<Player>(keeper);
    }
    ~World() override
    {
        Database::setBusyTimeout(5000);
        std::printf("| %s | %d | %d | %d |\n", what, refused, saved, lost); // a row of the table that KillTest begins
    }

    void expectInFile(const Book &expected)
    {
        const Book found = file();
        EXPECT_EQ(found, expected);
        lost += found != expected;
    }
    Book file() { return bookOf(*Database::OpenDatabase(keeper.databaseFile())); }

    /// Plays a move that the spoilt world refuses, and, once it is mended, confirms it again.
    void expectRefusedThenSaved(const Move &move, const std::function<void()> &spoil, const std::function<void()> &mend)
    {
        SCOPED_TRACE(move.key.toStdString() + " move " + std::to_string(move.what));
        const Book before = file();
        keeper.told();
        const auto expectRefused = [&] {
            mend();
            EXPECT_TRUE(!keeper.doors.failures.empty() || !keeper.doors.boxes.empty()) << "nothing was told";
            keeper.told();
            expectInFile(before);
            ++refused;
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
        Book after = before;
        note(after, move);
        expectInFile(after);
        ++saved;
    }

    /// All that can be done to entries, one after the other, each in a spoilt world first.
    void playAll(const std::function<void()> &spoil, const std::function<void()> &mend)
    {
        for (const char *tank : {"A", "B"})
            if (keeper.count(QString("TANKLST WHERE tankname = '%1'").arg(tank)) == 0)
                keeper.addTank(tank, tank);
        Form<frm_Waterlog>().Refresh_Treeview();
        QStringList keys;
        for (const QChar kind : kinds) {
            keeper.doors.clock = keeper.doors.clock.addSecs(61);
            keys << keyOf(kind, "A", keeper.doors.clock.toString(momentPicture));
            expectRefusedThenSaved({Move::Add, keys.last(), 5}, spoil, mend);
        }
        for (const QString &key : keys)
            expectRefusedThenSaved({Move::Change, key, 7}, spoil, mend);
        const Move animal{Move::MoveTank, keys[1], 0, "B"};
        expectRefusedThenSaved(animal, spoil, mend);
        expectRefusedThenSaved({Move::Remove, keys[0]}, spoil, mend);
        expectRefusedThenSaved({Move::Remove, keys[2]}, spoil, mend);
        expectRefusedThenSaved({Move::RemoveTank, keyOf('T', "B", {})}, spoil, mend); // with its animal
    }

    FaultVfs faults;
    Keeper keeper;
    std::unique_ptr<Player> player;
    const char *what = "";
    int refused = 0, saved = 0, lost = 0;
};

TEST_F(World, AFullOrBrokenDisk)
{
    what = "disk full, or broken";
    for (const int code : {SQLITE_FULL, SQLITE_IOERR_WRITE})
        for (const int place : {0, 3, 5})
            playAll([&] { faults.plan({code, place, true}); }, [this] { faults.plan({}); });
}

TEST_F(World, AnotherProgramHoldsTheFile)
{
    what = "file locked by another program";
    std::unique_ptr<Database> other;
    std::unique_ptr<Database::Transaction> holding;
    playAll(
        [&] {
            other = Database::OpenDatabase(keeper.databaseFile());
            holding = std::make_unique<Database::Transaction>(*other);
        },
        [&] {
            holding.reset();
            other.reset();
        });
}

TEST_F(World, TheFileIsGone)
{
    what = "file moved away";
    const QString away = keeper.folder.filePath("away.MDB");
    playAll([&] { EXPECT_TRUE(QFile::rename(keeper.databaseFile(), away)); },
            [&] { EXPECT_TRUE(QFile::rename(away, keeper.databaseFile())); });
    QFile::remove(keeper.databaseFile());
    EXPECT_THROW(keeper.addTank("C", "C"), RuntimeFailure) << "It went to a file that nobody finds.";
}

TEST_F(World, TheFileIsMadeReadOnly)
{
    what = "file made read-only while it is open; the next start refuses it";
    const QByteArray name = QFile::encodeName(keeper.databaseFile());
    keeper.addTank("A", "A");
    Form<frm_Waterlog>().Refresh_Treeview();
    ASSERT_EQ(::chmod(name.constData(), 0444), 0);
    const Move add{Move::Add, keyOf('W', "A", keeper.doors.clock.toString(momentPicture)), 5};
    player->play(add); // the file is open for writing: what was said to be saved is
    EXPECT_EQ(keeper.told(), "0");
    keeper.g().gDatabase.reset();
    EXPECT_THROW(Database::OpenDatabase(keeper.databaseFile()), RuntimeFailure);
    ++refused;
    ASSERT_EQ(::chmod(name.constData(), 0644), 0);
    expectInFile({{add.key, 5}, {keyOf('T', "A", {}), 0}});
    ++saved;
}

TEST_F(World, TheSettingsCannotBeRead)
{
    what = "settings that cannot be read, or not be written";
    const QString garbage = keeper.folder.filePath("garbage.ini"), folder = keeper.folder.filePath("folder.ini");
    QFile file(garbage);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && QDir().mkdir(folder));
    file.write(QByteArray("[SETTINGS\n\0\xff\xfe=\n%%%", 18));
    file.close();
    keeper.addTank("A", "A");
    for (const QString &settings : {garbage, folder}) {
        player.reset();
        ScriptedDoors doors(settings);
        doors.clock = keeper.doors.clock = keeper.doors.clock.addSecs(61);
        keeper.restart();
        player = std::make_unique<Player>(keeper);
        player->play({Move::Add, keyOf('W', "A", doors.clock.toString(momentPicture)), 5});
        EXPECT_EQ(doors.failures.size(), 0u);
        EXPECT_TRUE(doors.takeText().contains(settings == folder ? "settings could not be written" : "0 boxes:"));
        EXPECT_EQ(keeper.count("WATERLOG"), ++saved);
    }
}

} // namespace
