// Brings a database of version 1.0 or 1.1 up to the present one, one version a step. A step is one transaction:
// whatever ends it in the middle, the file is of the version that it had and the step can be tried again. What the
// steps do stands in two tables in Upgrade.cpp; the window frm_OMKupgrade runs them and tells how far they are.
#pragma once

#include <functional>
#include <span>

#include <QString>

class Database;

/// Is told where the progress bar stands, 0 to 100.
using BarMoves = std::function<void(int)>;

struct UpgradeStep
{
    const char *to; ///< the version that the step leaves in CONFIG
    /// The whole step. Throws RuntimeFailure, and nothing has changed then.
    void (*run)(Database &database, const BarMoves &bar);
};

/// The steps that a database of that version (four characters, as ReadDatabaseVersion gives them) needs, in their
/// order; none for a version that nothing is known of.
std::span<const UpgradeStep> UpgradeSteps(const QString &version);

/// Add one row to ANIMALLIST: a freshwater animal, a maintenance task.
void AddFreshAnimal(Database &database, const QString &name);
void AddMaintenanceTask(Database &database, const QString &name);
