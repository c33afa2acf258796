// The upgrade as a keeper sees it: a copy of the old file is kept, the steps of Upgrade.h run in the window
// frm_OMKupgrade, and a box follows each. Knows nothing of the program above: the main window hands in the database and
// its version.
#pragma once

#include <memory>

#include <QString>

#include "store/Database.h"

class frm_OMKupgrade;

/// The database is closed and opened again by its name, the version follows each step; both are the caller's, and live
/// as long as the window.
class UpgradeWork
{
public:
    UpgradeWork(std::unique_ptr<Database> &database, const QString &databaseName, QString &version);

    /// Throws the RuntimeFailure that ended it: the file is then whole, of the version that it had or of the step that
    /// was done, and the upgrade can be tried again.
    void operator()(frm_OMKupgrade &window);

private:
    void runSteps(frm_OMKupgrade &window);
    void reopen(Database::Access access);

    std::unique_ptr<Database> &m_database;
    QString m_databaseName;
    QString &m_version;
};
