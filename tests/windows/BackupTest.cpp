// The backup as a keeper makes it from the File menu, with the logbook open.
#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/logbook/frm_WaterAddEdit.h"

class Backup : public Desk
{
protected:
    QString path(const QString &name) const { return keeper.folder.filePath(name); }
    /// Chooses the menu entry, and in its dialog that file or Cancel.
    void choose(const std::optional<QString> &file, MsgBoxAnswer overwrite = MsgBoxAnswer::OK)
    {
        keeper.doors.files = {file};
        keeper.doors.answers = {overwrite};
        QDir::setCurrent("/"); // as the dialog may do
        hand::choose(*main, *main->mnu_File, "mnu_FileBackup");
        EXPECT_EQ(QDir::currentPath(), keeper.folder.path());
    }
    /// Adds a water test on the next day.
    void addTest()
    {
        keeper.doors.clock = keeper.doors.clock.addDays(1);
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(keeper.told(), "0");
    }
};

TEST_F(Backup, WhereTheDatabaseCannotBeOpenedAgainItIsToldAndEachCommandTries)
{
    const QFile::Permissions former = QFile::permissions("OM.MDB");
    QFile::setPermissions("OM.MDB", QFile::ReadOwner);
    choose(path("copy.MDB"));
    const QString told = keeper.doors.failures.at(0).description();
    EXPECT_TRUE(told.startsWith("Permission denied.\nThe database was backed up to " + path("copy.MDB")));
    EXPECT_TRUE(told.contains("The database is read-only:\n" + path("OM.MDB"))) << told.toStdString();
    keeper.told();
    push("addentries");
    EXPECT_EQ(keeper.told(), "0|failure 70") << "as the command would with the file open";
    QFile::setPermissions("OM.MDB", former);
    addTest();
    EXPECT_EQ(keeper.count("WATERLOG"), 1);
}

TEST_F(Backup, CopiesAsksRemembersTheNameAndTellsWhatFailed)
{
    const QString file = path("copy.MDB"), question = "Note!/33/The file already exists, overwrite?";
    const QString success = "Database Backup/64/OM.MDB was backed up to " + file + " with these attributes:copy.MDB ";
    const QString refused = "Database Backup/48/The database was not backed up.\n\nPermission denied.";
    const std::tuple<std::optional<QString>, MsgBoxAnswer, QString> rows[] = {
        {std::nullopt, MsgBoxAnswer::OK, "0"}, // nothing is chosen yet
        {file, MsgBoxAnswer::OK, "1|" + success},
        {std::nullopt, MsgBoxAnswer::Cancel, "0|" + question},
        {std::nullopt, MsgBoxAnswer::OK, "1|" + question + '|' + success},
        {path("OM.MDB"), MsgBoxAnswer::OK, "1|" + refused},
    };
    for (const auto &[chosen, overwrite, told] : rows) {
        choose(chosen, overwrite);
        EXPECT_EQ(keeper.told().left(told.size()), told);
        addTest(); // the database must accept it
    }
    EXPECT_EQ(Database::OpenDatabase(file)->OpenRecordset("SELECT * FROM WATERLOG").RecordCount(), 3);
    EXPECT_EQ(keeper.doors.saveDialogs[3].fileName, file);
    EXPECT_FALSE(keeper.doors.saveDialogs[3].askOverwrite);
}

TEST_F(Backup, TheFirstChangeOfADayKeepsACopyAndTheStatusBarSaysWhereThatFails)
{
    addTest();
    EXPECT_EQ(QDir("copies").entryList(QDir::Files), QStringList("OM-2026-03-15.MDB"));
    QDir("copies").removeRecursively();
    writeFile("copies", "in the way");
    addTest();
    EXPECT_TRUE(main->statusBar()->currentMessage().startsWith("No copy of the logbook was made today: "));
}
