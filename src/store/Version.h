// The version of a database: four characters in CONFIG, blank-padded. A database without that column is of version 1.0.
#pragma once

#include <QString>

class Database;

inline const QString presentDatabaseVersion = QStringLiteral("2.0 ");

/// "0.0 " where CONFIG has no column db_version, else what stands there.
QString ReadDatabaseVersion(Database &database);
