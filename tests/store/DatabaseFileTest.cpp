// Which files are opened, which are refused and how, and that a refusal leaves everything as it was.
#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "platform/Files.h"
#include "store/DatabaseFile.h"
#include "StoreFixture.h"

namespace {

class DatabaseFileTest : public StoreTest
{
protected:
    DatabaseFileTest() { db->Close(); }

    void write(const QByteArray &bytes) { writeFile(path(), bytes); }
    QByteArray bytes() { return contentOf(folder.path())["OM.MDB"]; }
    void overwrite(qsizetype at, const QByteArray &with) { write(bytes().replace(at, with.size(), with)); }
    void sql(const char *statements) { ASSERT_NE(OtherProgram(path()).run(statements), "error"); }
    /// Opening ends in that failure with that word in it, and no byte of the folder differs afterwards.
    void expectRefused(Failure number, const char *word, const char *what)
    {
        const auto before = contentOf(folder.path());
        const auto failure = failureOf([&] { open(); });
        ASSERT_TRUE(failure) << what;
        EXPECT_EQ(int(failure->number()), int(number)) << what;
        EXPECT_TRUE(failure->description().contains(word)) << what << ": " << failure->what();
        EXPECT_TRUE(failure->description().contains(folder.path())) << what << ": " << failure->what();
        EXPECT_EQ(before, contentOf(folder.path())) << what;
    }
};

TEST_F(DatabaseFileTest, ForeignAndDamagedFilesAreRefusedAndLeftAlone)
{
    const QByteArray good = bytes();
    const struct
    {
        const char *what;
        std::function<void()> spoil;
        const char *word;
    } cases[] = {
        {"empty", [&] { write(""); }, "too short"},
        {"a text", [&] { write(QByteArray(5000, 'x')); }, "no database"},
        {"of another program", [&] { sql("PRAGMA application_id = 7; PRAGMA journal_mode = WAL"); }, "another program"},
        {"half of it", [&] { write(good.left(good.size() / 2)); }, "damaged"},
        {"last bytes lost", [&] { write(good.left(good.size() - 100)); }, "end of the file"},
        {"page of the schema", [&] { overwrite(100, QByteArray(3000, '\xff')); }, "damaged"},
        {"a table missing", [&] { sql("DROP TABLE LIVESTOCK"); }, "LIVESTOCK"},
        {"no row of CONFIG", [&] { sql("DELETE FROM CONFIG"); }, "CONFIG"},
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

TEST_F(DatabaseFileTest, ReadOnlyFilesAndFoldersAreRefused)
{
    for (const QString &what : {path(), folder.path()}) {
        const QByteArray name = QFile::encodeName(what);
        ASSERT_EQ(::chmod(name.constData(), 0555), 0);
        expectRefused(Failure::PermissionDenied, "read-only", name.constData());
        ::chmod(name.constData(), 0755); // so that the folder can be removed
    }
    open();
}

TEST_F(DatabaseFileTest, AFileThatAnotherProgramHoldsIsRefused)
{
    Database::setBusyTimeout(10);
    {
        OtherProgram other(path());
        ASSERT_EQ(other.run("BEGIN EXCLUSIVE"), "");
        expectRefused(Failure::PermissionDenied, "Another program", "locked");
        other.run("ROLLBACK; BEGIN; SELECT * FROM CONFIG");
        const auto failure = failureOf([&] { Database::OpenDatabase(path(), Database::Access::Exclusive); });
        EXPECT_EQ(failure ? failure->number() : Failure{}, Failure::PermissionDenied);
        open();
    }
    Database::setBusyTimeout(5000);
}

TEST_F(DatabaseFileTest, ExclusiveAccessKeepsOthersOutUntilItEnds)
{
    db = Database::OpenDatabase(path(), Database::Access::Exclusive);
    OtherProgram other(path());
    EXPECT_EQ(other.run("SELECT count(*) FROM CONFIG"), "error");
    db->Execute("UPDATE CONFIG SET default_salt = 0");
    EXPECT_EQ(other.run("SELECT count(*) FROM CONFIG"), "error");
    db->Close();
    EXPECT_EQ(other.run("SELECT default_salt FROM CONFIG"), "0");
    EXPECT_EQ(contentOf(folder.path()).size(), 1u);
}

TEST_F(DatabaseFileTest, NamesAreFoundInAnyCaseAndTheExactNameWins)
{
    ASSERT_TRUE(QFile::rename(path(), path("om.Mdb")));
    open();
    EXPECT_EQ(db->fileName(), path("om.Mdb"));
    db->Close();
    QFile::copy(path("om.Mdb"), path("OM.MDB"));
    EXPECT_EQ(FindFile(path("OM.MDB")), path("OM.MDB"));
    EXPECT_EQ(FindFile(path("om.Mdb")), path("om.Mdb"));
    EXPECT_EQ(FindFile(path("other.mdb")), "");
}

TEST_F(DatabaseFileTest, AnotherWayOfJournallingIsPutBack)
{
    sql("PRAGMA journal_mode = WAL; UPDATE CONFIG SET default_salt = 0");
    open();
    EXPECT_FALSE(db->OpenRecordset("SELECT * FROM CONFIG")["default_salt"].value().toBool());
    EXPECT_EQ(OtherProgram(path()).run("PRAGMA journal_mode"), "delete");
    EXPECT_EQ(contentOf(folder.path()).size(), 1u);
}

} // namespace
