// The files of the old engine that the tests read, and their contents as CSV files show them. To compare the two, each
// row becomes one line of text with the value of each column.
#pragma once

#include <gtest/gtest.h>
#include <QtEndian>

#include "data/CsvReader.h"
#include "store/Database.h"
#include "store/StoreFixture.h"

struct OldFile
{
    QString name, version;
    QByteArray bytes() const { return contentOf(OMK_OLD_FILES)[name]; }
    int pageSize() const { return name.contains("jet3") ? 2048 : 4096; }
};

inline const std::vector<OldFile> oldFiles{
    {"OM-1.0-jet3.MDB", "1.0"}, {"OM-1.0-jet4.MDB", "1.0"}, {"OM-1.1-jet3.MDB", "1.1"},
    {"OM-1.1-jet4.MDB", "1.1"}, {"OM-2.0-jet3.MDB", "2.0"}, {"OM-2.0-jet4.MDB", "2.0"},
};
inline const QStringList tableNames{"TANKLST",    "WATERLOG", "MAINTLOG",  "LIVESTOCK",
                                    "MAINTSCHED", "CONFIG",   "ANIMALLIST"};

/// Numbers and texts as the files have them.
template <class Number> QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}
inline QByteArray utf16(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

/// A value as both sides write it: numbers are compared as singles, which most of them are, and an empty text is like
/// Null.
inline QString plain(const QString &text)
{
    bool isNumber = false;
    const double number = text.toFloat(&isNumber);
    return isNumber ? QString::number(number + 0.0, 'g', 9) : text.isEmpty() ? QString("Null") : text;
}

/// The rows of a table in our database and in the CSV, a line each, sorted, in the columns of the CSV.
struct BothRows
{
    std::string ours, expected;
};
inline BothRows rowsOf(const QString &database, const OldFile &file, const QString &table)
{
    QStringList columns, ours, expected;
    CsvReader csv(QString(OMK_OLD_FILES "/rows-%1/%2.csv").arg(file.version, table), ',');
    const auto next = [&csv] {
        QStringList cells;
        if (csv.next())
            for (const CsvCell &cell : csv.cells())
                cells << QString::fromUtf8(cell.bytes.data(), qsizetype(cell.bytes.size()));
        return cells;
    };
    for (const QString &column : next())
        columns << "CAST(" + column + " AS TEXT)";
    for (QStringList cells = next(); !cells.isEmpty(); cells = next()) {
        for (QString &cell : cells) // the old engine has the day with each time, and midnight with each day
            cell = plain(cell.remove("1899-12-30 ").remove(" 00:00:00"));
        expected << cells.join('|');
    }
    const auto open = Database::OpenDatabase(database);
    const auto found = open->OpenRecordset("SELECT " + columns.join(',') + " FROM " + table).rows();
    for (qsizetype row = 0; row < found->count(); ++row) {
        QStringList cells;
        for (int column = 0; column < found->columns(); ++column)
            cells << plain(found->text(row, column));
        ours << cells.join('|');
    }
    ours.sort();
    expected.sort();
    return {ours.join('\n').toStdString(), expected.join('\n').toStdString()};
}
