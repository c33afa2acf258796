// The version of a database: four characters in CONFIG, blank-padded. A database without that column has version 1.0.
#pragma once

#include <QString>

class Database;

inline const QString presentDatabaseVersion = QStringLiteral("2.0 ");

/// The content of CONFIG.db_version, or "0.0 " if there is no such column.
QString ReadDatabaseVersion(Database &database);

/// The number of a version in the header of a file: 10, 11 or 20; 0 for an unknown version. `version` is the content of
/// CONFIG or the result of ReadDatabaseVersion.
int NumberOfVersion(const QString &version);
