// The start of the program with a file of the old engine: what is in the folder afterwards, what the keeper is told,
// and that nothing is lost if the start fails or is killed.
#include "upgrade/OpenOldFile.h"

#include <QCoreApplication>
#include <QDir>

#include "KilledAtCall.h"
#include "OldFiles.h"
#include "store/Version.h"
#include "upgrade/frm_OMKupgrade.h"
#include "upgrade/UpgradeDatabase.h"

struct OpenOldFileTest : testing::Test
{
    QString path(const QString &name = "OM.MDB") const { return folder.filePath(name); }
    bool open() { return OpenOldFile(path()); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }
    void expectEveryRow(const OldFile &file)
    {
        for (const QString &table : tableNames) {
            const BothRows rows = rowsOf(path(), file, table);
            EXPECT_EQ(rows.ours, rows.expected) << table.toStdString();
        }
    }
    void expectKept(const OldFile &file)
    {
        EXPECT_EQ(files(), QStringList({"OM-old-engine.MDB", "OM.MDB"}));
        EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], file.bytes());
    }

    QTemporaryDir folder;
    ScriptedDoors doors;
};

TEST_F(OpenOldFileTest, TheOldFileIsReadAndKeptAndTheUpgradeFollows)
{
    for (const OldFile &file : oldFiles) {
        SCOPED_TRACE(file.name.toStdString());
        for (const QString &name : files())
            QFile::remove(path(name));
        writeFile(path(), file.bytes());
        EXPECT_TRUE(open());
        const QString told = doors.told();
        EXPECT_TRUE(
            told.startsWith("0|Old Database/64/Your database of an early release was read into a new one. These came "
                            "over:\n\n3 tanks\n200 water tests\n20 livestock entries\n67 maintenance entries\n3 "
                            "reminders\n\n"))
            << told.toStdString();
        EXPECT_EQ(told.contains("table \"Table\""), file.name.contains("jet3"));
        EXPECT_TRUE(told.contains("\n" + path("OM-old-engine.MDB"))) << told.toStdString();
        expectEveryRow(file);
        EXPECT_TRUE(open());
        EXPECT_EQ(doors.told(), "0") << "it is done once";
        expectKept(file);
        auto database = Database::OpenDatabase(path());
        QString version = ReadDatabaseVersion(*database);
        if (version != presentDatabaseVersion) // the next step of the start
            frm_OMKupgrade(UpgradeWork(database, path(), version)).Run();
        EXPECT_EQ(version, presentDatabaseVersion);
        doors.told();
        EXPECT_EQ(files().filter("OM-version-" + file.version).size(), file.version == "2.0" ? 0 : 1);
    }
}

TEST_F(OpenOldFileTest, AnOlderKeptFileStaysAndANameInSmallLettersIsFound)
{
    writeFile(path("om-old-engine.mdb"), "another");
    writeFile(path("om.mdb"), oldFiles[0].bytes());
    QFile::setPermissions(path("om.mdb"), QFile::ReadOwner);
    EXPECT_TRUE(open());
    auto content = contentOf(folder.path());
    EXPECT_EQ(files(), QStringList({"om-old-engine-2.mdb", "om-old-engine.mdb", "om.mdb"}));
    EXPECT_EQ(content["om-old-engine.mdb"], "another");
    EXPECT_EQ(content["om-old-engine-2.mdb"], oldFiles[0].bytes());
    EXPECT_EQ(QFile::permissions(path("om-old-engine-2.mdb")) & QFile::WriteOwner, 0);
    EXPECT_EQ(QFile::permissions(path("om.mdb")) & (QFile::WriteOwner | QFile::ReadGroup), QFile::WriteOwner);
}

TEST_F(OpenOldFileTest, WhatFailsLeavesTheFolderAsItWasAndSaysWhy)
{
    const QByteArray whole = oldFiles[3].bytes();
    QByteArray withPassword[2] = {oldFiles[2].bytes(), whole};
    for (QByteArray &bytes : withPassword)
        bytes[0x44] = char(bytes[0x44] ^ 'x');
    const struct
    {
        QByteArray bytes;
        Failure number;
        QString says;
        QString journal = {};
        rlim_t room = RLIM_INFINITY;
    } rows[] = {
        {withPassword[0], Failure::PermissionDenied, "The file has a password."},
        {withPassword[1], Failure::PermissionDenied, "The file has a password."},
        {whole, Failure::DiskFull, "", {}, 100'000},
        {whole.first(100), Failure::UnrecognizedFormat, "too short"},
        {whole.first(4096) + QByteArray(100'000, '\xff'), Failure::UnrecognizedFormat, "damaged"},
        {whole.first(12 * 4096), Failure::NoSuchColumn, "The file has no table TANKLST. It is damaged, or"},
        {whole, Failure::PermissionDenied, "OM.MDB-journal", "OM.MDB-journal"},
    };
    for (const auto &row : rows) {
        writeFile(path(), row.bytes);
        if (!row.journal.isEmpty())
            writeFile(path(row.journal), "pages");
        const auto before = contentOf(folder.path());
        const auto failure = failureOf([&] {
            const SmallDisk disk(row.room, false);
            open();
        });
        ASSERT_TRUE(failure) << row.says.toStdString();
        EXPECT_EQ(failure->number(), row.number);
        for (const QString &words : {row.says, path()})
            EXPECT_TRUE(failure->description().contains(words)) << failure->what();
        EXPECT_EQ(contentOf(folder.path()), before);
    }
    EXPECT_EQ(doors.told(), "0");
}

TEST_F(OpenOldFileTest, TheKeeperDecidesOnADamagedFile)
{
    QByteArray damaged = oldFiles[3].bytes();
    std::fill_n(damaged.begin() + 56 * 4096, 4096, '\0'); // 29 water tests
    writeFile(path(), damaged);
    const auto before = contentOf(folder.path());
    EXPECT_FALSE(open()) << "No is the default";
    EXPECT_TRUE(doors.told().contains("This could not be read:\n\n- WATERLOG: "));
    EXPECT_EQ(contentOf(folder.path()), before);
    doors.answers = {MsgBoxAnswer::Yes};
    EXPECT_TRUE(open());
    EXPECT_TRUE(doors.told().contains("Please note:\n- Could not be read: WATERLOG: "));
    EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], damaged);
    EXPECT_EQ(OtherProgram(path()).run("SELECT count(*) FROM WATERLOG"), "171");
}

TEST_F(OpenOldFileTest, KilledAtAnyWriteTheOldFileIsWholeAndTheNextStartComesThrough)
{
    const int stride = KillStride(9);
    const OldFile &file = oldFiles[0];
    const auto start = [this] {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationDirPath() + "/omk_open_old");
        ::execl(program, program, QFile::encodeName(path()).constData(), nullptr);
    };
    int kills = 0, done = 0;
    for (int call = 0; !HasFailure(); call += stride, ++kills) {
        SCOPED_TRACE(call);
        for (const QString &name : files())
            QFile::remove(path(name));
        writeFile(path(), file.bytes());
        if (!KillAtCall(call, folder.path(), start))
            break;
        if (contentOf(folder.path()).at("OM.MDB") != file.bytes()) {
            ++done;
            EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], file.bytes());
            expectEveryRow(file);
        }
        EXPECT_TRUE(open());
        expectKept(file);
        expectEveryRow(file);
    }
    EXPECT_GT(kills * stride, 40);
    std::printf("| a file of the old engine, killed at a write | %d, %d of them when all was done |\n", kills, done);
}
