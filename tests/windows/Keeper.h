// A keeper at the desk: a folder with a new database, scripted doors, the process-wide values and the windows.
// restart() ends the program and starts it again with the same folder and settings. inNext<F>() says what the keeper
// does in a modal window that the test is about to open. If the window does not come, or is still open afterwards, the
// test fails; such a window is closed, so that no test hangs.
#pragma once

#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/ScriptedDoors.h"
#include "windows/shell/Forms.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/frm_OMKtod.h"

/// Waits until the window itself is in front, not a dialog of it that is still closing.
inline bool isInFront(const QWidget &window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

class Keeper
{
public:
    Keeper() : doors(folder.filePath(QStringLiteral("OMK.ini"))), m_formerDir(QDir::currentPath())
    {
        CreateDatabase(databaseFile());
        QDir::setCurrent(folder.path());
        start();
    }
    ~Keeper()
    {
        stop();
        QDir::setCurrent(m_formerDir);
    }

    void restart()
    {
        stop();
        start();
    }

    /// Starts the program as main() does. The tip of the day is closed and counted; the message about missing tanks is
    /// in the record of boxes.
    frm_OMKMDIMain &startProgram()
    {
        auto &main = Form<frm_OMKMDIMain>();
        QTimer atTip;
        QObject::connect(&atTip, &QTimer::timeout, &main, [this] {
            if (auto *tip = Forms::current().loaded<frm_OMKtod>(); tip && tip->isVisible()) {
                ++tipsAtStart;
                tip->close();
            }
        });
        atTip.start(0);
        main.MDIForm_Load();
        EXPECT_TRUE(isInFront(main));
        return main;
    }
    void addTank(const QString &name, const QString &id, const QString &waterType = QStringLiteral("2"))
    {
        g().gDatabase->Execute(QStringLiteral("INSERT INTO TANKLST (tankname, tankid, tanksize, TankWaterType) "
                                              "VALUES (?, ?, 55, ?)"),
                               {name, id, waterType});
    }

    /// Makes a tank the current one, as a window that shows it does.
    void takeInHand(const char *id, const char *name, const char *waterType)
    {
        g().gTankId = id;
        g().gTankName = name;
        g().gTankWaterType = waterType;
    }

    QString databaseFile() const { return folder.filePath(QStringLiteral("OM.MDB")); }
    Globals &g() { return *m_globals; }

    /// Column x of the first row of a SELECT, as text.
    QString stored(const QString &select) { return g().gDatabase->OpenRecordset("SELECT " + select)["x"].text(); }
    /// The number of rows of, for example, "WATERLOG WHERE tankname = 'Reef'".
    int count(const QString &what) { return stored("count(*) AS x FROM " + what).toInt(); }
    QString setting(const QString &key) { return GetSetting(key, QStringLiteral("(none)")); }

    QString told() { return doors.told(); }

    /// Says what the keeper does once the modal window F, which opens next, is in front.
    template <class F> static void inNext(std::function<void(F &)> action)
    {
        auto *watch = new QTimer(qApp);
        watch->setObjectName(watchName);
        QObject::connect(watch, &QTimer::timeout, watch, [watch, action = std::move(action)] {
            const QPointer<F> window = Forms::current().loaded<F>();
            if (!window || !window->isVisible())
                return; // the click that opens it has not arrived yet
            watch->stop();
            watch->setObjectName({});
            watch->deleteLater();
            EXPECT_TRUE(isInFront(*window));
            action(*window);
            if (window && window->isVisible()) {
                ADD_FAILURE() << window->objectName().toStdString() << " is still open.";
                Unload(*window);
            }
        });
        watch->start(0);
    }

    const QTemporaryDir folder;
    ScriptedDoors doors;
    int tipsAtStart = 0;

private:
    void start()
    {
        m_globals = std::make_unique<Globals>();
        m_globals->splashMilliseconds = 0;
        m_globals->gDatabaseName = QStringLiteral("OM.MDB");
        m_globals->gCurrentDir = folder.path();
        m_globals->gDatabase = Database::OpenDatabase(databaseFile());
        m_forms = std::make_unique<Forms>(*m_globals);
        Form<frm_OMKMDIMain>(); // every other window needs it
    }
    void stop()
    {
        for (QTimer *watch : qApp->findChildren<QTimer *>(watchName, Qt::FindDirectChildrenOnly)) {
            ADD_FAILURE() << "A window did not come.";
            delete watch;
        }
        m_forms.reset();
        m_globals.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    inline static const QString watchName = QStringLiteral("window to come");
    QString m_formerDir;
    std::unique_ptr<Globals> m_globals;
    std::unique_ptr<Forms> m_forms;
};

/// The control of a window with that name. Ends the test program if there is none.
template <class T> T &control(QWidget &window, const QString &name)
{
    T *found = window.findChild<T *>(name);
    if (!found)
        qFatal("%s has no %s", qPrintable(window.objectName()), qPrintable(name));
    return *found;
}

/// Clicks the mark of an option or a check box, or the left part of any other control.
inline void click(QWidget &widget) { QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2)); }

inline void clickEntry(QMenu &menu, const QString &name)
{
    auto &action = control<QAction>(*menu.parentWidget(), name);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
}
