// Finds the table and the columns that the header of a CSV file names.
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
    QStringList names;       ///< as they are in the file
    std::vector<int> places; ///< of each value of a row: the place of its column in the table, or leftOut

    bool has(int place) const;
};

/// The table is the one that has all columns of the header. Nothing if there is none; then each fault was told, with
/// the name that it concerns (empty for none) and a sentence.
std::optional<Header> ReadHeader(std::span<const DataTable> tables, const QStringList &names,
                                 const ImportOptions &options,
                                 const std::function<void(const QString &name, const QString &reason)> &tell);
