// Reads the header of a CSV file: finds the table whose columns it names, by the user's map of names if there is one.
// Used by the import.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <QStringList>

#include "data/Tables.h"

struct ImportOptions;

struct Header
{
    static constexpr int leftOut = -1;

    const DataTable *table = nullptr;
    QStringList names;       ///< as in the file
    std::vector<int> places; ///< for each value of a row, the place of its column in the table, or leftOut

    bool has(int place) const;
};

/// Finds the only table that has all columns of the header. Returns nothing if there is none; then `tell` was called
/// for each fault, with the name of the column (empty for a fault of the whole header) and a sentence.
std::optional<Header> ReadHeader(std::span<const DataTable> tables, const QStringList &names,
                                 const ImportOptions &options,
                                 const std::function<void(const QString &name, const QString &reason)> &tell);
