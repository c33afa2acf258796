// The window of the upgrade, shown at the start before any other where the database is of an earlier version: it keeps
// a copy of the old file, runs the steps of Upgrade.h, and shows how far they are. It cannot be closed by hand. It
// knows nothing of the program above: the main window hands it the database and its version.
#pragma once

#include <memory>
#include <optional>

#include <QDialog>

#include "platform/RuntimeFailure.h"
#include "store/Database.h"

class QLabel;
class QProgressBar;
class QTimer;

class frm_OMKupgrade : public QDialog
{
    Q_OBJECT
public:
    /// The database is closed and opened again by its name, the version follows each step; both are the caller's.
    frm_OMKupgrade(std::unique_ptr<Database> &database, const QString &databaseName, QString &version);

    /// Shows the window and waits until all is done. Throws the RuntimeFailure that ended it: the file is then whole,
    /// of the version that it had or of the step that was done, and the upgrade can be tried again.
    void Upgrade();
    void reject() override {} // nobody leaves in the middle

    QLabel *Label1;
    QProgressBar *ProgressBar1;
    QTimer *Timerx;

private:
    void Form_Load();
    void Timerx_Timer();
    void runSteps();
    void reopen(Database::Access access);
    void repaintAll();

    std::unique_ptr<Database> &m_database;
    QString m_databaseName;
    QString &m_version;
    std::optional<RuntimeFailure> m_failure;
};
