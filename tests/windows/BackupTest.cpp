// The backup as a keeper makes it from the File menu, with the logbook open.
#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/logbook/frm_WaterAddEdit.h"

class Backup : public Desk
{
protected:
    Backup() { QDir(keeper.folder.path()).mkdir("to"); }
    QString path(const QString &name) const { return keeper.folder.filePath(name); }
    /// Chooses the menu entry, and in its dialog that file or Cancel, and returns the messages. Afterwards the database
    /// must accept a water test.
    QString backUp(const std::optional<QString> &file, MsgBoxAnswer overwrite = MsgBoxAnswer::OK)
    {
        keeper.doors.files = {file};
        keeper.doors.answers = {overwrite};
        QDir::setCurrent("/"); // as the dialog may do
        hand::choose(*main, *main->mnu_File, "mnu_FileBackup");
        EXPECT_EQ(QDir::currentPath(), keeper.folder.path());
        const QString told = keeper.told();
        keeper.doors.clock = keeper.doors.clock.addSecs(60);
        const int before = keeper.count("WATERLOG");
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(keeper.count("WATERLOG"), before + 1);
        return told;
    }
};

TEST_F(Backup, WhereTheDatabaseCannotBeOpenedAgainItIsToldAndEachCommandTries)
{
    const QFile::Permissions former = QFile::permissions(path("OM.MDB"));
    for (const QString &target : {path("to/copy.MDB"), path("none/copy.MDB")}) {
        QFile::setPermissions("OM.MDB", QFile::ReadOwner);
        keeper.doors.files = {target};
        hand::choose(*main, *main->mnu_File, "mnu_FileBackup");
        EXPECT_EQ(QFile::exists(target), target.contains("to/"));
        ASSERT_GE(keeper.doors.failures.size(), 1u);
        const QString told = keeper.doors.failures.front().description();
        EXPECT_TRUE(told.startsWith("Permission denied.\nThe database was ")) << told.toStdString();
        EXPECT_EQ(told.contains("was backed up to " + target), target.contains("to/")) << told.toStdString();
        EXPECT_EQ(told.contains("was not backed up: Path not found"), target.contains("none")) << told.toStdString();
        EXPECT_TRUE(told.contains("The database is read-only:\n" + path("OM.MDB"))) << told.toStdString();
        keeper.told();
        push("addentries");
        EXPECT_EQ(keeper.told(), "0|failure 70") << "as the command would with the file open";
        QFile::setPermissions("OM.MDB", former);
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(keeper.told(), "0");
        keeper.doors.clock = keeper.doors.clock.addSecs(60);
    }
    EXPECT_EQ(keeper.count("WATERLOG"), 2);
}

TEST_F(Backup, CopiesAsksRemembersTheNameAndTellsWhatFailed)
{
    const QString file = path("to/copy.MDB"), question = "Note!/33/The file already exists, overwrite?";
    const QString success = "Database Backup/64/OM.MDB was backed up to " + file + " with these attributes:copy.MDB ";
    const auto testsInIt = [&] {
        return Database::OpenDatabase(file)->OpenRecordset("SELECT * FROM WATERLOG").RecordCount();
    };
    EXPECT_EQ(backUp(std::nullopt), "0") << "nothing chosen yet";
    EXPECT_TRUE(backUp(file).startsWith("1|" + success));
    EXPECT_EQ(testsInIt(), 1);
    EXPECT_EQ(backUp(std::nullopt, MsgBoxAnswer::Cancel), "0|" + question);
    EXPECT_EQ(testsInIt(), 1);
    EXPECT_TRUE(backUp(std::nullopt).startsWith("1|" + question + '|' + success));
    EXPECT_EQ(testsInIt(), 3);
    EXPECT_EQ(keeper.doors.saveDialogs[3].fileName, file);
    EXPECT_FALSE(keeper.doors.saveDialogs[3].askOverwrite);
    const QString refused = backUp(path("OM.MDB"));
    EXPECT_TRUE(refused.startsWith("1|Database Backup/48/The database was not backed up.\n\nPermission denied."));
    EXPECT_TRUE(refused.contains(path("OM.MDB"))) << refused.toStdString();
}

TEST_F(Backup, TheFirstChangeOfADayKeepsACopyAndTheStatusBarSaysWhereThatFails)
{
    const auto addTest = [this] {
        keeper.doors.clock = keeper.doors.clock.addDays(1);
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(keeper.told(), "0");
    };
    const int before = keeper.count("WATERLOG");
    addTest();
    EXPECT_EQ(QDir(path("copies")).entryList(QDir::Files), QStringList("OM-2026-03-15.MDB"));
    EXPECT_EQ(main->statusBar()->currentMessage(), "");
    QDir(path("copies")).removeRecursively();
    writeFile(path("copies"), "in the way");
    addTest();
    EXPECT_TRUE(main->statusBar()->currentMessage().startsWith("No copy of the logbook was made today: "))
        << main->statusBar()->currentMessage().toStdString();
    EXPECT_EQ(keeper.count("WATERLOG"), before + 2);
}
