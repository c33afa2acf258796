// Reads a value of a CSV file as its column stores it, by the rules of the entry windows.
#pragma once

#include <variant>

#include <QHash>

#include "data/CsvReader.h"
#include "data/Tables.h"
#include "text/Dates.h"

struct ImportOptions;

/// Why a value is refused: a sentence.
struct Refusal
{
    QString reason;
};

/// The text of a value; refused if the bytes are no UTF-8.
std::variant<QString, Refusal> DecodedText(const CsvCell &cell);

/// A date as the file may have it: ISO, or in the order of the options.
std::optional<QDate> ReadFileDate(const QString &text, const ImportOptions &options);

/// What the values of a file are read by, apart from their columns.
struct CellContext
{
    const ImportOptions &options;
    QHash<QString, QString> tankIds; ///< of the tanks of the database, by their names
    int lastYear = lastTypedYear();  ///< asked once, because it asks the clock
};

std::variant<Value, Refusal> ReadCell(const DataColumn &column, const CsvCell &cell, const QString &text,
                                      const CellContext &context);
