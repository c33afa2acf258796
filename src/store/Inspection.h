// What a database file holds, and whether it is whole. Used by the data
// command, by its list of copies and before a copy takes the place of the
// database.
#pragma once

#include <QString>
#include <QStringList>

class Database;

struct FileContent
{
    qint64 tanks = 0;
    qint64 entries = 0; ///< of all three logs
    qint64 reminders = 0;
};
/// Throws RuntimeFailure where the file is damaged.
FileContent CountContent(Database &database);

/// What the engine finds wrong in the file, at most a hundred lines; none if
/// the file is whole. It reads all of it.
QStringList FindDamage(Database &database);

/// In what the tables, columns and indexes differ from those of a new database,
/// a line each. What a file has in addition is not looked at.
QStringList FindSchemaFaults(Database &database);
