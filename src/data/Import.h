// Imports a CSV file into the database: one that the export wrote, or any other whose header names the columns. Each
// value is checked by the rules of the entry windows. One transaction stores either all rows or none.
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QString>

#include "text/Dates.h"

struct Globals;

struct ImportOptions
{
    /// Names in the header and the columns that they stand for; their case does not matter. If the column is empty, the
    /// values are left out.
    std::vector<std::pair<QString, QString>> map = {};
    std::optional<DateOrder> dateOrder = {}; ///< of dates that are not ISO; if not set, all must be ISO
    char delimiter = ',';                    ///< see CsvReader::canDelimit
    bool decimalComma = false;               ///< numbers have "," before their decimals instead of "."
    bool replaces = false;                   ///< existing rows that differ get the values of the file
    bool isDryRun = false;                   ///< everything is checked and counted, but nothing is stored
    QString tank = {};                       ///< the tank of all entries, if the file has no column for the tank
};

/// Reads "pH=ph,NO3=nitrate". A name may contain commas and "="; the last "=" before the comma counts. Returns nothing
/// if a "=" is missing.
std::optional<std::vector<std::pair<QString, QString>>> ReadMap(const QString &text);

struct ImportFault
{
    qint64 line = 0; ///< from 1
    QString column;  ///< as the header names it; empty for a fault of the whole row or file
    QString value;   ///< as in the file
    QString reason;  ///< a sentence
};

/// The fault as one line of text without control characters; a long value is cut.
QString FaultText(const ImportFault &fault);

struct ImportResult
{
    QString entry; ///< what a row is, such as "water test"; empty if the header does not say so
    qint64 added = 0;
    qint64 replaced = 0;
    qint64 passedOver = 0; ///< rows that already exist, with the same values in all columns of the file
    qint64 faults = 0;     ///< if this is not 0, nothing was stored
};

/// Imports the file into g.gDatabase; ReadOptions must have been called. `tell` is called for each fault, in the order
/// of the lines. Throws RuntimeFailure if the file or the database cannot be read or written; nothing is stored then.
ImportResult Import(const Globals &g, const QString &fileName, const ImportOptions &options,
                    const std::function<void(const ImportFault &)> &tell);
