// The seven tables of the database file at the present version, as docs/SCHEMA.md tells them: whoever changes one
// changes the other. Used by the program that writes new files and by the checks of OpenDatabase.
#pragma once

#include <span>

#include <QtGlobal>

namespace schema {

/// Marks an SQLite file as one of ours ("OMKA"); in its header since the file was made.
inline constexpr qint32 applicationId = 0x4F4D4B41;
/// Number of the schema in the file's header: version 2.0. What decides about an upgrade is CONFIG.db_version
/// (Version.h).
inline constexpr int userVersion = 20;

struct Table
{
    const char *name;
    const char *create;  ///< CREATE TABLE statement
    const char *indexes; ///< CREATE UNIQUE INDEX statements; may be empty
};

/// In the order in which they are made.
std::span<const Table> tables();

} // namespace schema
