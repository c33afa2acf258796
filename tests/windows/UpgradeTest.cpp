// The start on a database of an earlier version: the window of the upgrade before every other, its bar, its boxes.
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>

#include "Keeper.h"
#include "OldDatabase.h"
#include "platform/RuntimeFailure.h"
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
            seen << box.title;
            if (window) {
                QTest::keyClick(window, Qt::Key_Escape);
                window->close();
                EXPECT_TRUE(window->isVisible());
                seen.last() += " over " + window->Label1->text();
            }
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
        if (!window)
            return false;
        seen << window->windowTitle() << window->Label1->text();
        connect(window->ProgressBar1, &QProgressBar::valueChanged, this,
                [this](int bar) { seen << QString::number(bar); });
        return false;
    }

private:
    Keeper &keeper;
    QPointer<frm_OMKupgrade> window;
};

/// With one of an older version, where one is told.
void replaceDatabase(Keeper &keeper, const QString &version, const char *statement = nullptr)
{
    keeper.g().gDatabase.reset();
    if (!version.isEmpty()) {
        QFile::remove(keeper.databaseFile());
        WriteOldDatabase(keeper.databaseFile(), version, 20);
        // Reminders that would have no end afterwards have a box of their own.
        Database::OpenDatabase(keeper.databaseFile())->Execute("DELETE FROM MAINTSCHED WHERE schedyears IS NULL");
    }
    if (statement)
        Database::OpenDatabase(keeper.databaseFile())->Execute(statement);
}

const QString opening = "frm_OMKupgrade|Processing Status|Upgrading Database to ver |";
const QString first = "10|20|30|40|50|60|70|80|90|100|Upgrade Successful over Upgrading database to version 1.1|0|";
const QString second = "10|20|30|40|50|60|70|80|Upgrade Successful over Upgrading database to version 2.0|";
TEST(Upgrade, RunsBeforeTheOtherWindowsAndTellsEachStep)
{
    const struct
    {
        const char *written, *statement;
        QString shown;
        int steps;
        const char *version;
    } rows[] = {
        {"1.0", nullptr, opening + first + second, 2, "2.0 "},
        {"1.1", "UPDATE CONFIG SET db_version = '1.1'", opening + second, 1, "2.0 "},
        {"", "UPDATE CONFIG SET db_version = '3.0 '", opening, 0, "3.0 "},
    };
    for (const auto &row : rows) {
        Keeper keeper;
        keeper.addTank("Reef", "r1");
        replaceDatabase(keeper, row.written, row.statement);
        Watcher watcher(keeper);
        keeper.startProgram();
        EXPECT_EQ(watcher.seen.join('|'), QString(row.shown + "frm_OMKMDIMain|frm_OMKaboutbox|frm_OMKtod"));
        EXPECT_EQ(keeper.told().count("|Upgrade Successful/"), row.steps);
        EXPECT_EQ(keeper.g().gDbVersion, row.version);
        EXPECT_EQ(keeper.stored("SELECT db_version FROM CONFIG", "db_version"), row.version);
        EXPECT_NO_THROW(Database::OpenDatabase(keeper.databaseFile())) << "others may read again";
        EXPECT_EQ(QFileInfo::exists(keeper.folder.filePath(QString("OM-version-%1.MDB").arg(row.written))),
                  row.steps > 0);
    }
}

TEST(Upgrade, AFailureEndsTheStartAndTheNextOneGoesOn)
{
    Keeper keeper;
    replaceDatabase(keeper, "1.0");
    {
        const auto other = Database::OpenDatabase(keeper.databaseFile());
        const RowStream reading = other->OpenForwardOnly("SELECT * FROM ANIMALLIST");
        Database::setBusyTimeout(10);
        Watcher watcher(keeper);
        try {
            Form<frm_OMKMDIMain>().MDIForm_Load();
            ADD_FAILURE() << "It started.";
        } catch (const RuntimeFailure &failure) {
            EXPECT_EQ(failure.number(), Failure::PermissionDenied);
            for (const char *words : {"Another program holds", "OM.MDB\" is whole and of version 1.0.", "again"})
                EXPECT_TRUE(failure.description().contains(words)) << failure.what();
        }
        EXPECT_EQ(watcher.seen.join('|') + '|', opening);
        EXPECT_EQ(keeper.told(), "0");
        Database::setBusyTimeout(5000);
    }
    keeper.restart();
    keeper.startProgram();
    EXPECT_EQ(keeper.told().count("|Upgrade Successful/"), 2);
}

} // namespace
