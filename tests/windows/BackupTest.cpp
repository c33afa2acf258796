// The backup as a keeper makes it from the File menu, with the logbook open.
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPushButton>

#include "Hands.h"
#include "logbook/frm_WaterAddEdit.h"

namespace {

class Backup : public ::testing::Test
{
protected:
    Backup() : main(start())
    {
        hand::clickTank(hand::openLogbook(main), "Reef");
        QDir(keeper.folder.path()).mkdir("to");
    }
    frm_OMKMDIMain &start()
    {
        keeper.addTank("Reef", "r1");
        return keeper.startProgram();
    }
    QString path(const QString &name) const { return keeper.folder.filePath(name); }
    /// Chooses the entry, and in its dialog that file, or Cancel; what was told comes back.
    QString backUp(const std::optional<QString> &file, MsgBoxAnswer overwrite = MsgBoxAnswer::OK)
    {
        keeper.doors.files = {file};
        keeper.doors.answers = {overwrite};
        QDir::setCurrent("/"); // as the dialog may leave it
        hand::choose(main, *main.mnu_File, "mnu_FileBackup");
        return keeper.told();
    }
    /// Makes a water test through the windows: the database is open and takes it.
    void expectUsable()
    {
        const int before = keeper.count("WATERLOG");
        keeper.doors.clock = keeper.doors.clock.addSecs(60);
        keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &window) { mouse::click(window.cmd_OK); });
        hand::press(Qt::Key_N, Qt::ControlModifier);
        EXPECT_TRUE(isInFront(main));
        EXPECT_EQ(keeper.count("WATERLOG"), before + 1);
        EXPECT_EQ(keeper.told(), "0");
    }
    QString success(const QString &file)
    {
        const QFileInfo copy(file);
        return "1|Database Backup/64/OM.MDB was backed up to " + file + " with these attributes:" + copy.fileName() +
               ' ' + QLocale::system().toString(copy.lastModified(), QLocale::ShortFormat) + " - " +
               QString::number(QFileInfo(path("OM.MDB")).size()) + " bytes.";
    }

    Keeper keeper;
    frm_OMKMDIMain &main;
};

const QString question = "Note!/33/The file already exists, overwrite?";

TEST_F(Backup, CopiesAsksAndRemembersTheName)
{
    EXPECT_EQ(backUp(std::nullopt), "0") << "nothing chosen yet";
    const QString file = path("to/copy.MDB");
    const QString first = backUp(file);
    EXPECT_EQ(first, success(file));
    EXPECT_EQ(QDir::currentPath(), keeper.folder.path());
    expectUsable();
    EXPECT_EQ(Database::OpenDatabase(file)->OpenRecordset("SELECT * FROM WATERLOG").RecordCount(), 0);

    Recordset before = keeper.g().gDatabase->OpenRecordset("SELECT * FROM WATERLOG");
    EXPECT_EQ(backUp(std::nullopt, MsgBoxAnswer::Cancel), "0|" + question);
    EXPECT_TRUE(before.isSet()) << "the database was never closed";
    const QString again = backUp(std::nullopt);
    EXPECT_EQ(again, success(file).insert(1, '|' + question));
    EXPECT_FALSE(before.isSet());
    EXPECT_EQ(Database::OpenDatabase(file)->OpenRecordset("SELECT * FROM WATERLOG").RecordCount(), 1);
    expectUsable();
    ASSERT_EQ(keeper.doors.saveDialogs.size(), 4u);
    EXPECT_EQ(keeper.doors.saveDialogs[1].fileName + '|' + keeper.doors.saveDialogs[3].fileName, '|' + file);
    EXPECT_FALSE(keeper.doors.saveDialogs[3].askOverwrite);
}

TEST_F(Backup, ATargetThatTakesNoneIsToldAndTheProgramGoesOn)
{
    const QString start = "1|Database Backup/48/The database was not backed up.\n\n";
    const std::pair<QString, QString> rows[] = {
        {path("to"), "Permission denied.\n\"" + path("to") + "\" is a folder."},
        {path("OM.MDB"), "Permission denied.\n\"" + path("OM.MDB") + "\" is the"},
        {path("none/copy"), "Path not found.\nCopying the database to"}};
    for (const auto &[target, words] : rows) {
        const QString told = backUp(target);
        EXPECT_TRUE(told.startsWith(start + words)) << told.toStdString();
        EXPECT_EQ(QDir::currentPath(), keeper.folder.path());
        expectUsable();
    }
    EXPECT_EQ(QDir(path("to")).entryList(QDir::Files).size(), 0);
}

} // namespace
