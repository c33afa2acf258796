// Counts what a database file contains and checks whether it is damaged. Used by the data command, and before a copy
// takes the place of the database.
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
/// Throws RuntimeFailure if the file is damaged.
FileContent CountContent(Database &database);

/// The damage that the engine finds in the file, at most a hundred lines; none if the file is undamaged. Reads the
/// whole file.
QStringList FindDamage(Database &database);

/// The tables, columns and indexes of a new database that are missing here or different, a line each. Additional ones
/// are ignored.
QStringList FindSchemaFaults(Database &database);
