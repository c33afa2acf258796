// Tests which files are opened and which are refused, and that a refusal changes no file.
#include <sys/stat.h>

#include "StoreFixture.h"

struct DatabaseFileTest : StoreTest
{
    DatabaseFileTest() { db->Close(); }

    /// Expects that opening fails with that number and a text that contains the word, and that no file of the folder
    /// changes.
    void expectRefused(Failure number, const char *word)
    {
        const auto before = contentOf(folder.path());
        const auto failure = failureOf([&] { open(); });
        ASSERT_TRUE(failure && failure->number() == number) << word;
        EXPECT_TRUE(failure->description().contains(word)) << failure->what();
        EXPECT_TRUE(failure->description().contains(folder.path())) << failure->what();
        EXPECT_EQ(before, contentOf(folder.path())) << word;
    }
};

TEST_F(DatabaseFileTest, ForeignAndDamagedFilesAreRefused)
{
    const QByteArray good = contentOf(folder.path())["OM.MDB"];
    const auto write = [this](const QByteArray &bytes) { writeFile(path(), bytes); };
    const std::pair<const char *, std::function<void()>> cases[] = {
        {"too short", [&] { write(""); }},
        {"no database", [&] { write(QByteArray(5000, 'x')); }},
        {"another program", [&] { asked("PRAGMA application_id = 7; PRAGMA journal_mode = WAL"); }},
        {"damaged", [&] { write(good.left(good.size() / 2)); }},
        {"damaged", [&] { write(QByteArray(good).replace(100, 3000, QByteArray(3000, '\xff'))); }},
        {"LIVESTOCK", [&] { asked("DROP TABLE LIVESTOCK"); }},
        {"CONFIG", [&] { asked("DELETE FROM CONFIG"); }},
    };
    for (const auto &[word, spoil] : cases) {
        write(good);
        spoil();
        expectRefused(Failure::UnrecognizedFormat, word);
    }
    ASSERT_TRUE(QFile::remove(path()));
    expectRefused(Failure::CouldNotFindFile, "OM.MDB");
    QDir(folder.path()).mkdir("OM.MDB");
    expectRefused(Failure::CouldNotFindFile, "OM.MDB");
}

TEST_F(DatabaseFileTest, ReadOnlyAndLockedFilesAreRefused)
{
    for (const QString &what : {path(), folder.path()}) {
        ASSERT_EQ(::chmod(qPrintable(what), 0555), 0);
        expectRefused(Failure::PermissionDenied, "read-only");
        ::chmod(qPrintable(what), 0755); // so that the folder can be removed
    }
    Database::setBusyTimeout(10);
    OtherProgram other(path());
    ASSERT_EQ(other.run("BEGIN EXCLUSIVE"), "");
    expectRefused(Failure::PermissionDenied, "Another program");
    other.run("ROLLBACK; BEGIN; SELECT * FROM CONFIG");
    const auto openAlone = [this] { db = Database::OpenDatabase(path(), Database::Access::Exclusive); };
    EXPECT_EQ(numberOf(openAlone), int(Failure::PermissionDenied));
    Database::setBusyTimeout(5000);
    other.run("ROLLBACK");
    openAlone();
    db->Execute("UPDATE CONFIG SET default_salt = 0");
    EXPECT_EQ(other.run("SELECT count(*) FROM CONFIG"), "error") << "alone until it is closed";
    db->Close();
    EXPECT_EQ(other.run("SELECT default_salt FROM CONFIG"), "0");
}
