// Tests which files are opened and which are refused, and that a refusal changes no file.
#include <sys/stat.h>

#include "StoreFixture.h"

struct DatabaseFileTest : StoreTest
{
    DatabaseFileTest() { db->Close(); }

    /// Expects that opening fails with that number and a text that contains the word, and that no file of the folder
    /// changes.
    void expectRefused(Failure number, const char *word, const char *what)
    {
        const auto before = contentOf(folder.path());
        const auto failure = failureOf([&] { open(); });
        ASSERT_TRUE(failure) << what;
        EXPECT_EQ(int(failure->number()), int(number)) << what;
        for (const QString &part : {QString(word), folder.path()})
            EXPECT_TRUE(failure->description().contains(part)) << what << ": " << failure->what();
        EXPECT_EQ(before, contentOf(folder.path())) << what;
    }
};

TEST_F(DatabaseFileTest, ForeignAndDamagedFilesAreRefused)
{
    const QByteArray good = contentOf(folder.path())["OM.MDB"];
    const auto write = [this](const QByteArray &bytes) { writeFile(path(), bytes); };
    const struct
    {
        const char *what;
        std::function<void()> spoil;
        const char *word;
    } cases[] = {
        {"empty", [&] { write(""); }, "too short"},
        {"a text", [&] { write(QByteArray(5000, 'x')); }, "no database"},
        {"another's", [&] { asked("PRAGMA application_id = 7; PRAGMA journal_mode = WAL"); }, "another program"},
        {"half of it", [&] { write(good.left(good.size() / 2)); }, "damaged"},
        {"page of the schema", [&] { write(QByteArray(good).replace(100, 3000, QByteArray(3000, '\xff'))); },
         "damaged"},
        {"a table missing", [&] { asked("DROP TABLE LIVESTOCK"); }, "LIVESTOCK"},
        {"no row of CONFIG", [&] { asked("DELETE FROM CONFIG"); }, "CONFIG"},
    };
    for (const auto &row : cases) {
        write(good);
        row.spoil();
        expectRefused(Failure::UnrecognizedFormat, row.word, row.what);
    }
    ASSERT_TRUE(QFile::remove(path()));
    expectRefused(Failure::CouldNotFindFile, "OM.MDB", "missing");
    QDir(folder.path()).mkdir("OM.MDB");
    expectRefused(Failure::CouldNotFindFile, "OM.MDB", "a folder of that name");
}

TEST_F(DatabaseFileTest, ReadOnlyAndLockedFilesAreRefused)
{
    for (const QString &what : {path(), folder.path()}) {
        const QByteArray name = QFile::encodeName(what);
        ASSERT_EQ(::chmod(name.constData(), 0555), 0);
        expectRefused(Failure::PermissionDenied, "read-only", name.constData());
        ::chmod(name.constData(), 0755); // so that the folder can be removed
    }
    Database::setBusyTimeout(10);
    OtherProgram other(path());
    ASSERT_EQ(other.run("BEGIN EXCLUSIVE"), "");
    expectRefused(Failure::PermissionDenied, "Another program", "locked");
    other.run("ROLLBACK; BEGIN; SELECT * FROM CONFIG");
    const auto openAlone = [this] { db = Database::OpenDatabase(path(), Database::Access::Exclusive); };
    EXPECT_EQ(numberOf(openAlone), int(Failure::PermissionDenied));
    Database::setBusyTimeout(5000);
    other.run("ROLLBACK");
    openAlone();
    EXPECT_EQ(other.run("SELECT count(*) FROM CONFIG"), "error");
    db->Execute("UPDATE CONFIG SET default_salt = 0");
    EXPECT_EQ(other.run("SELECT count(*) FROM CONFIG"), "error") << "alone until it is closed";
    db->Close();
    EXPECT_EQ(other.run("SELECT default_salt FROM CONFIG"), "0");
}

TEST_F(DatabaseFileTest, AFileThatWasLetGoIsOpenedByItsNextUse)
{
    open();
    auto lapsed = db->OpenRecordset("SELECT * FROM CONFIG");
    const auto use = [this] { db->Execute("UPDATE CONFIG SET default_salt = 0"); };
    db->LetGo();
    ASSERT_TRUE(QFile::rename(path(), path("away.MDB")));
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_EQ(numberOf(use), int(Failure::CouldNotFindFile));
    EXPECT_EQ(numberOf([this] { db->OpenAgain(); }), int(Failure::CouldNotFindFile));
    ASSERT_TRUE(QFile::rename(path("away.MDB"), path()));
    EXPECT_EQ(numberOf(use), 0);
    EXPECT_EQ(numberOf([&] { lapsed.Edit(); }), int(Failure::ObjectNotSet));
    db->Close();
    EXPECT_EQ(numberOf(use), int(Failure::ObjectNotSet)) << "closed for good";
}
