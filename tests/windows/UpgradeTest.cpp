// The start with a database of an earlier version: the upgrade window, which comes before all others, its progress bar
// and its messages.
#include "Keeper.h"
#include "OldDatabase.h"
#include "upgrade/frm_OMKupgrade.h"

TEST(Upgrade, RunsBeforeTheOtherWindowsAndTellsEachStep)
{
    Keeper keeper;
    keeper.g().gDatabase.reset();
    QFile::remove(keeper.databaseFile());
    WriteOldDatabase(keeper.databaseFile(), "1.0", 20);
    // Without these reminders, which would have no end after the upgrade and get a message of their own.
    Database::OpenDatabase(keeper.databaseFile())->Execute("DELETE FROM MAINTSCHED WHERE schedyears IS NULL");
    keeper.restart();
    QString told;
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &box) {
        auto &window = *QApplication::activeWindow();
        QTest::keyClick(&window, Qt::Key_Escape);
        window.close();
        EXPECT_TRUE(window.isVisible());
        told += box.title + " over " + window.objectName() + ": " + control<QLabel>(window, "Label1").text() +
                QString(" %1 %|").arg(control<QProgressBar>(window, "ProgressBar1").value());
    };
    keeper.startProgram();
    EXPECT_EQ(told, "Upgrade Successful over frm_OMKupgrade: Upgrading database to version 1.1 100 %|"
                    "Upgrade Successful over frm_OMKupgrade: Upgrading database to version 2.0 80 %|");
    EXPECT_TRUE(QFileInfo::exists(keeper.folder.filePath("OM-version-1.0.MDB")));
}
