// The start on a database of an earlier version: the window of the upgrade before every other, its bar, its boxes.
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>

#include "Keeper.h"
#include "OldDatabase.h"
#include "store/frm_OMKupgrade.h"

namespace {

/// Records what the window shows, from the moment that it comes up, and tries to close it.
class Watcher : public QObject
{
public:
    explicit Watcher(Keeper &k) : keeper(k)
    {
        qApp->installEventFilter(this);
        keeper.doors.whileBoxIsUp = [this](const MsgBoxRequest &box) {
            ASSERT_TRUE(window);
            QTest::keyClick(window, Qt::Key_Escape);
            window->close();
            EXPECT_TRUE(window->isVisible());
            seen << box.title + " over " + window->Label1->text();
        };
    }
    ~Watcher() override { keeper.doors.whileBoxIsUp = {}; }
    QStringList seen;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Show || !object->isWidgetType() || !static_cast<QWidget *>(object)->isWindow())
            return false;
        seen << object->objectName();
        window = qobject_cast<frm_OMKupgrade *>(object);
        if (window)
            connect(window->ProgressBar1, &QProgressBar::valueChanged, this,
                    [this](int bar) { seen << QString::number(bar); });
        return false;
    }

private:
    Keeper &keeper;
    QPointer<frm_OMKupgrade> window;
};

void replaceDatabase(Keeper &keeper, const QString &version)
{
    keeper.g().gDatabase.reset();
    QFile::remove(keeper.databaseFile());
    WriteOldDatabase(keeper.databaseFile(), version, 20);
    // Reminders that would have no end afterwards have a box of their own.
    Database::OpenDatabase(keeper.databaseFile())->Execute("DELETE FROM MAINTSCHED WHERE schedyears IS NULL");
}

TEST(Upgrade, RunsBeforeTheOtherWindowsAndTellsEachStep)
{
    const QString first = "|10|20|30|40|50|60|70|80|90|100|Upgrade Successful over Upgrading database to version 1.1|0";
    const QString second = "|10|20|30|40|50|60|70|80|Upgrade Successful over Upgrading database to version 2.0";
    Keeper keeper;
    replaceDatabase(keeper, "1.0");
    Watcher watcher(keeper);
    keeper.startProgram();
    EXPECT_EQ(watcher.seen.join('|'), "frm_OMKupgrade" + first + second + "|frm_OMKMDIMain|frm_OMKaboutbox|frm_OMKtod");
    EXPECT_EQ(keeper.g().gDbVersion, "2.0 ");
    EXPECT_TRUE(QFileInfo::exists(keeper.folder.filePath("OM-version-1.0.MDB")));
}

} // namespace
