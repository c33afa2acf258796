// The version of a database: four characters in CONFIG, blank-padded. A database without that column has version 1.0.
#pragma once

#include <QString>

class Database;

inline const QString presentDatabaseVersion = QStringLiteral("2.0 ");

/// The content of CONFIG.db_version, or "0.0 " if there is no such column.
QString ReadDatabaseVersion(Database &database);

/// 10, 11 or 20, as the header of a file of that version says, which ReadDatabaseVersion gives or what stands in
/// CONFIG; 0 for a version that nothing is known of.
int NumberOfVersion(const QString &version);
