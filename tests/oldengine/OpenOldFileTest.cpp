// The start of the program with a file of the old engine: what is in the folder afterwards, what the keeper is told,
// and that nothing is lost if the start fails or is killed.
#include "upgrade/OpenOldFile.h"

#include <QLabel>
#include <QTimer>
#include <QtWidgets>

#include "KilledAtCall.h"
#include "OldFiles.h"
#include "store/Version.h"
#include "upgrade/frm_OMKupgrade.h"
#include "upgrade/UpgradeDatabase.h"

struct OpenOldFileTest : testing::Test
{
    QString path(const QString &name = "OM.MDB") const { return folder.filePath(name); }
    void put(const QByteArray &bytes, const QString &name = "OM.MDB")
    {
        QFile::remove(path(name));
        writeFile(path(name), bytes);
    }
    bool open() { return OpenOldFile(path()); }
    /// The next step of the start.
    void upgrade()
    {
        auto database = Database::OpenDatabase(path());
        QString version = ReadDatabaseVersion(*database);
        if (version != presentDatabaseVersion)
            frm_OMKupgrade(UpgradeWork(database, path(), version)).Run();
        EXPECT_EQ(version, presentDatabaseVersion);
    }
    void expectEveryRow(const OldFile &file, bool isUpgraded)
    {
        const auto database = Database::OpenDatabase(path());
        for (const QString &table : tableNames) {
            BothRows rows = rowsOf(*database, file, table, isUpgraded ? "db_version" : "");
            if (isUpgraded && table == "ANIMALLIST") // the upgrade from 1.0 adds rows to it
                rows.ours.removeIf([&](const QString &line) { return !rows.expected.contains(line); });
            expectSame(rows, table);
        }
    }

    QTemporaryDir folder;
    ScriptedDoors doors;
};

TEST_F(OpenOldFileTest, TheOldFileIsReadAndKeptAndTheUpgradeFollows)
{
    for (const OldFile &file : oldFiles) {
        SCOPED_TRACE(file.name.toStdString());
        put(file.bytes());
        QFile::remove(path("OM-old-engine.MDB"));
        QStringList shown;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&shown] {
            for (QWidget *window : QApplication::topLevelWidgets())
                if (window->isVisible() && window->objectName() == "frm_OMKupgrade")
                    shown << window->findChild<QLabel *>("Label1")->text();
        });
        watch.start(0);
        EXPECT_TRUE(open());
        EXPECT_TRUE(shown.contains("Reading the old database"));
        const QString told = doors.told();
        EXPECT_TRUE(
            told.startsWith("0|Old Database/64/Your database of an early release was read into a new one. These came "
                            "over:\n\n3 tanks\n200 water tests\n20 livestock entries\n67 maintenance entries\n3 "
                            "reminders\n\n"))
            << told.toStdString();
        EXPECT_EQ(told.contains("table \"Table\""), file.name.contains("jet3"));
        EXPECT_TRUE(told.contains("\n" + path("OM-old-engine.MDB"))) << told.toStdString();
        EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], file.bytes());
        expectEveryRow(file, false);
        EXPECT_TRUE(open());
        EXPECT_EQ(doors.told(), "0") << "it is done once";
        upgrade();
        expectEveryRow(file, true);
        for (const QString &name : {QString("OM-version-1.0.MDB"), QString("OM-version-1.1.MDB")})
            EXPECT_EQ(QFile::remove(path(name)), name.contains(file.version));
        doors.told();
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"OM-old-engine.MDB", "OM.MDB"}));
    }
}

TEST_F(OpenOldFileTest, AnOlderKeptFileStaysAndANameInSmallLettersIsFound)
{
    put("another", "om-old-engine.mdb");
    put(oldFiles[0].bytes(), "om.mdb");
    QFile::setPermissions(path("om.mdb"), QFile::ReadOwner);
    EXPECT_TRUE(open());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
              QStringList({"om-old-engine-2.mdb", "om-old-engine.mdb", "om.mdb"}));
    EXPECT_EQ(contentOf(folder.path())["om-old-engine.mdb"], "another");
    EXPECT_EQ(contentOf(folder.path())["om-old-engine-2.mdb"], oldFiles[0].bytes());
    EXPECT_EQ(QFile::permissions(path("om-old-engine-2.mdb")) & QFile::WriteOwner, 0);
    EXPECT_EQ(QFile::permissions(path("om.mdb")) & (QFile::WriteOwner | QFile::ReadGroup), QFile::WriteOwner);
    expectEveryRow(oldFiles[0], false);
}

TEST_F(OpenOldFileTest, WhatFailsLeavesTheFolderAsItWasAndSaysWhy)
{
    const QByteArray whole = oldFiles[3].bytes();
    QByteArray withPassword = whole;
    withPassword[0x44] = char(withPassword[0x44] ^ 'x');
    const struct
    {
        QByteArray bytes;
        Failure number;
        QString says;
    } rows[] = {
        {withPassword, Failure::PermissionDenied, "The file has a password."},
        {whole.first(100), Failure::UnrecognizedFormat, "too short"},
        {whole.first(4096) + QByteArray(100'000, '\xff'), Failure::UnrecognizedFormat, "damaged"},
        {whole.first(12 * 4096), Failure::NoSuchColumn, "The file has no table TANKLST. It is damaged, or"},
    };
    for (const auto &row : rows) {
        put(row.bytes);
        const auto before = contentOf(folder.path());
        const auto failure = failureOf([this] { open(); });
        ASSERT_TRUE(failure) << row.says.toStdString();
        EXPECT_EQ(failure->number(), row.number);
        EXPECT_TRUE(failure->description().contains(row.says)) << failure->what();
        EXPECT_TRUE(failure->description().contains(path())) << failure->what();
        EXPECT_EQ(contentOf(folder.path()), before);
    }
    put(whole);
    put("pages", "OM.MDB-journal");
    const auto before = contentOf(folder.path());
    EXPECT_EQ(numberOf([this] { open(); }), int(Failure::PermissionDenied));
    EXPECT_EQ(contentOf(folder.path()), before);
    EXPECT_EQ(doors.told(), "0");
}

TEST_F(OpenOldFileTest, TheKeeperDecidesOnADamagedFile)
{
    QByteArray damaged = oldFiles[3].bytes();
    std::fill_n(damaged.begin() + 56 * 4096, 4096, '\0'); // 29 water tests
    put(damaged);
    const auto before = contentOf(folder.path());
    EXPECT_FALSE(open()) << "No is the default";
    EXPECT_TRUE(doors.told().contains("This could not be read:\n\n- WATERLOG: "));
    EXPECT_EQ(contentOf(folder.path()), before);
    doors.answers = {MsgBoxAnswer::Yes};
    EXPECT_TRUE(open());
    EXPECT_TRUE(doors.told().contains("Please note:\n- Could not be read: WATERLOG: "));
    EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], damaged);
    Database::OpenDatabase(path());
}

TEST_F(OpenOldFileTest, NoOtherFileIsTouched)
{
    EXPECT_TRUE(open()) << "no file";
    put("Standard Jet DB");
    EXPECT_TRUE(open());
    QFile::remove(path());
    CreateDatabase(path());
    EXPECT_TRUE(open());
    EXPECT_EQ(doors.told(), "0");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("OM.MDB"));
}

TEST_F(OpenOldFileTest, KilledAtAnyWriteTheOldFileIsWholeAndTheNextStartComesThrough)
{
    int stride = 9;
    for (const QString &argument : QCoreApplication::arguments())
        if (argument == "--kills=all")
            stride = 1;
    const OldFile &file = oldFiles[0];
    KilledAtCall calls(folder.path());
    int kills = 0, done = 0;
    for (int call = 0;; call += stride) {
        SCOPED_TRACE(call);
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
            QFile::remove(path(name));
        put(file.bytes());
        if (!calls.run(call, QCoreApplication::applicationDirPath() + "/omk_open_old", {path()}))
            break;
        ++kills;
        const auto content = contentOf(folder.path());
        if (content.at("OM.MDB") != file.bytes()) {
            ++done;
            EXPECT_EQ(content.at("OM-old-engine.MDB"), file.bytes());
            expectEveryRow(file, false);
        }
        EXPECT_TRUE(open());
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"OM-old-engine.MDB", "OM.MDB"}));
        EXPECT_EQ(contentOf(folder.path())["OM-old-engine.MDB"], file.bytes());
        expectEveryRow(file, false);
        if (HasFailure())
            break;
    }
    EXPECT_GT(kills * stride, 40);
    std::printf("| a file of the old engine, killed at a write | %d, %d of them when all was done |\n", kills, done);
}
