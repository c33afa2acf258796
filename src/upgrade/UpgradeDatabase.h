// The upgrade as a keeper sees it: a copy of the old file is kept, the steps of Upgrade.h run in the window
// frm_OMKupgrade, and a message follows each. The main window passes the database and its version in.
#pragma once

#include <memory>

#include <QString>

#include "store/Database.h"

class frm_OMKupgrade;

/// Closes the database and opens it again by its name, and updates the version after each step. Both belong to the
/// caller and must outlive the window.
class UpgradeWork
{
public:
    UpgradeWork(std::unique_ptr<Database> &database, const QString &databaseName, QString &version);

    /// Throws the RuntimeFailure that ended the upgrade. The file is then complete, of its former version or of that of
    /// the last finished step, and the upgrade can be started again.
    void operator()(frm_OMKupgrade &window);

private:
    void runSteps(frm_OMKupgrade &window);
    void reopen(Database::Access access);

    std::unique_ptr<Database> &m_database;
    QString m_databaseName;
    QString &m_version;
};
