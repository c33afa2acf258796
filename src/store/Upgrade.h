// Upgrades a database of version 1.0 or 1.1 to the current version, one version at a step. Each step is one
// transaction: if it is interrupted, the file still has its old version and the step can be repeated. Two tables in
// Upgrade.cpp list what the steps do; UpgradeDatabase.h runs them and shows their progress.
#pragma once

#include <functional>
#include <span>

#include <QString>

class Database;

/// Receives the position of the progress bar, 0 to 100.
using BarMoves = std::function<void(int)>;

struct UpgradeStep
{
    const char *to; ///< the version that the step leaves in CONFIG
    /// Runs the whole step. If it throws a RuntimeFailure, nothing has changed.
    void (*run)(Database &database, const BarMoves &bar);
};

/// The steps that a database of that version (four characters, as ReadDatabaseVersion gives them) needs, in order; none
/// for an unknown version.
std::span<const UpgradeStep> UpgradeSteps(const QString &version);

/// Does one of those steps add that column, so that a file of that version may lack it?
bool IsOfLaterVersion(const QString &version, const QString &table, const QString &column);

/// Add one row to ANIMALLIST: a freshwater animal or a maintenance task.
void AddFreshAnimal(Database &database, const QString &name);
void AddMaintenanceTask(Database &database, const QString &name);
