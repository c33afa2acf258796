// Tests of the backup: it writes the whole file or nothing, whatever happens to the target, the disk or the process,
// and it never overwrites the database itself.
#include "store/Backup.h"

#include <sys/stat.h>

#include "StoreFixture.h"

struct BackupTest : StoreTest
{
    BackupTest()
    {
        QDir(folder.path()).mkdir("to");
        writeFile(path("to/old.MDB"), "an older file");
        addWater(1);
        db->Close();
    }
    void expectUnharmed()
    {
        open();
        EXPECT_EQ(count("WATERLOG"), 1);
        db->Close();
        EXPECT_EQ(contentOf(path("to"))["old.MDB"], "an older file");
    }
};

TEST_F(BackupTest, BadTargetsAndSourcesAreRefused)
{
    ASSERT_EQ(::symlink(qPrintable(path()), qPrintable(path("to/symbolic"))), 0);
    ASSERT_EQ(::link(qPrintable(path()), qPrintable(path("to/hard"))), 0);
    writeFile(path("to/locked"), "precious");
    ASSERT_EQ(::chmod(qPrintable(path("to/locked")), 0444), 0);
    const std::pair<QString, const char *> cases[] = {
        {path(), "is the database itself"},
        {path("to/symbolic"), "is the database itself"},
        {path("to/hard"), "is the database itself"},
        {path("to/../OM.MDB-journal"), "is the database itself"},
        {path("to"), "is a folder"},
        {path("to/locked"), "is read-only"},
        {"/dev/full", "is a device"},
        {path("to/old.MDB/copy"), "Path not found"},
    };
    const auto before = contentOf(path("to"));
    for (const auto &[target, words] : cases) {
        const auto failure = failureOf([&] { BackUpDatabase(path(), target); });
        ASSERT_TRUE(failure) << target.toStdString();
        EXPECT_TRUE(failure->description().contains(words)) << failure->what();
    }
    EXPECT_EQ(contentOf(path("to")), before);
    const auto backUp = [this] { BackUpDatabase(path(), path("to/old.MDB")); };
    OtherProgram other(path());
    ASSERT_EQ(other.run("BEGIN EXCLUSIVE; DELETE FROM WATERLOG"), "");
    Database::setBusyTimeout(10);
    EXPECT_EQ(numberOf(backUp), int(Failure::PermissionDenied)) << "while another program writes";
    Database::setBusyTimeout(5000);
    other.run("ROLLBACK");
    expectUnharmed();
    writeFile(path(), ""); // a file that is no database must not replace a backup
    EXPECT_EQ(numberOf(backUp), int(Failure::UnrecognizedFormat));
    QFile::remove(path());
    EXPECT_EQ(numberOf(backUp), int(Failure::CouldNotFindFile));
    EXPECT_EQ(contentOf(path("to"))["old.MDB"], "an older file");
}

TEST_F(BackupTest, CopiesContentAndPermissions)
{
    ASSERT_EQ(::chmod(qPrintable(path()), 0600), 0);
    ASSERT_EQ(::symlink("old.MDB", qPrintable(path("to/link.MDB"))), 0);
    BackUpDatabase(path(), path("to/link.MDB"));
    EXPECT_EQ(contentOf(path("to"))["old.MDB"], contentOf(folder.path())["OM.MDB"]);
    EXPECT_EQ(QFile::permissions(path("to/old.MDB")) & QFile::ReadGroup, 0);
    EXPECT_TRUE(QFileInfo(path("to/link.MDB")).isSymLink());
}

TEST_F(BackupTest, AFailedBackupLeavesTheOldTargetAndAFailedStartNoDatabase)
{
    const qint64 size = QFileInfo(path()).size();
    const auto before = contentOf(path("to"));
    for (qint64 room = 0; room < size; room += size / 9 + 1) { // nine disks, full and killed
        const auto withRoom = [&](bool death, auto work, const char *target) {
            const SmallDisk disk(rlim_t(room), death);
            work(path(target));
        };
        const auto backUp = [this](const QString &target) { BackUpDatabase(path(), target); };
        EXPECT_NE(numberOf([&] { withRoom(false, CreateDatabase, "to/new.MDB"); }), 0) << room;
        EXPECT_EQ(numberOf([&] { withRoom(false, backUp, "to/old.MDB"); }), int(Failure::DiskFull)) << room;
        EXPECT_EQ(contentOf(path("to")), before);
        EXPECT_EQ(signalThatEnds([&] { withRoom(true, backUp, "to/old.MDB"); }), SIGXFSZ) << room;
        expectUnharmed(); // the next backup removes what is left of the copy
    }
    BackUpDatabase(path(), path("to/old.MDB"));
    EXPECT_NO_THROW(Database::OpenDatabase(path("to/old.MDB")));
    EXPECT_EQ(contentOf(path("to")).size(), 1u);
}
