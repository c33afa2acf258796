// Converts a value of a CSV file into the value that its column stores, by the rules of the entry windows. Used by the
// import.
#pragma once

#include <variant>

#include <QHash>

#include "data/CsvReader.h"
#include "data/Tables.h"
#include "text/Dates.h"

struct ImportOptions;

/// Why a value is refused; a sentence.
struct Refusal
{
    QString reason;
};

/// The text of a value; refused if the bytes are not UTF-8.
std::variant<QString, Refusal> DecodedText(const CsvCell &cell);

/// Whether the column holds texts, for which an empty value differs from a missing one.
bool IsText(CellKind kind);

/// A date as a file may contain it: ISO, or in the order that the options say.
std::optional<QDate> ReadFileDate(const QString &text, const ImportOptions &options);

/// What reading a value depends on besides its column.
struct CellContext
{
    const ImportOptions &options;
    QHash<QString, QString> tankIds; ///< the tankid of each tank in the database, by its name
    int lastYear = lastTypedYear();  ///< asked once, because it asks the clock
};

std::variant<Value, Refusal> ReadCell(const DataColumn &column, const CsvCell &cell, const QString &text,
                                      const CellContext &context);
