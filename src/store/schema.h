// The seven tables of the database file at the current version. docs/SCHEMA.md describes them; change both together.
// Used to create new files and by the checks of OpenDatabase.
#pragma once

#include <span>

#include <QtGlobal>

namespace schema {

/// Identifies an SQLite file as one of ours ("OMKA"); part of the file's header from its creation.
inline constexpr qint32 applicationId = 0x4F4D4B41;
/// Schema number in the file's header: version 2.0. Whether a file is upgraded depends on CONFIG.db_version
/// (Version.h).
inline constexpr int userVersion = 20;

struct Table
{
    const char *name;
    const char *create;  ///< CREATE TABLE statement
    const char *indexes; ///< CREATE UNIQUE INDEX statements; may be empty
};

/// In the order of their creation.
std::span<const Table> tables();

} // namespace schema
