// The files of the old engine that the tests read, and their contents as CSV files show them. To compare the two, each
// row becomes one line of text with the name and the value of each column.
#pragma once

#include <charconv>

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

#include "data/CsvReader.h"
#include "store/Database.h"
#include "store/StoreFixture.h"

struct OldFile
{
    QString name, version;
    QString path() const { return QStringLiteral(OMK_OLD_FILES "/") + name; }
    QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    int pageSize() const { return name.contains("jet3") ? 2048 : 4096; }
};

inline const std::vector<OldFile> oldFiles{
    {"OM-1.0-jet3.MDB", "1.0"}, {"OM-1.0-jet4.MDB", "1.0"}, {"OM-1.1-jet3.MDB", "1.1"},
    {"OM-1.1-jet4.MDB", "1.1"}, {"OM-2.0-jet3.MDB", "2.0"}, {"OM-2.0-jet4.MDB", "2.0"},
};
inline const QStringList tableNames{"TANKLST",    "WATERLOG", "MAINTLOG",  "LIVESTOCK",
                                    "MAINTSCHED", "CONFIG",   "ANIMALLIST"};

/// The fields of a row; a field that is empty and has no quotes is Null.
using CsvRow = std::vector<std::optional<QString>>;

inline std::vector<CsvRow> readCsv(const QString &path)
{
    std::vector<CsvRow> rows;
    CsvReader reader(path, ',');
    while (reader.next()) {
        rows.emplace_back();
        for (const auto &[bytes, isNull] : reader.cells())
            rows.back().push_back(isNull ? std::nullopt
                                         : std::optional(QString::fromUtf8(bytes.data(), qsizetype(bytes.size()))));
    }
    return rows;
}

/// The columns that the files store as doubles; all other numbers with decimals are singles or currency.
inline const QStringList doubleColumns{"copper", "sg", "custom2", "price_paid", "price_sold"};

inline QString textOf(const Value &value)
{
    if (const auto *date = std::get_if<QDate>(&value.variant()))
        return date->toString(Qt::ISODate);
    if (const auto *time = std::get_if<QTime>(&value.variant()))
        return time->toString(Qt::ISODate);
    if (const auto *number = std::get_if<double>(&value.variant()))
        return QString::number(*number == 0 ? 0 : *number, 'g', 17);
    return value.isNull() ? QString("Null") : value.text();
}

/// The text that a field of the CSV must have in our database. The CSV has doubles with fifteen digits and does not
/// distinguish an empty text from Null.
inline QString expectedText(const std::optional<QString> &field, const FieldDef &column)
{
    if (!field)
        return "Null";
    if (column.Type == FieldType::Date || column.Type == FieldType::Time)
        return field->section(u' ', column.Type == FieldType::Date ? 0 : 1, column.Type == FieldType::Date ? 0 : 1);
    if (column.Type != FieldType::Double)
        return *field;
    if (doubleColumns.contains(column.Name))
        return QString::number(field->toDouble() + 0.0, 'g', 15);
    char shortest[64];
    const auto end = std::to_chars(shortest, shortest + sizeof shortest, field->toFloat()).ptr;
    return textOf(QByteArray(shortest, end - shortest).toDouble());
}
inline QString textOf(const Value &value, const FieldDef &column)
{
    if (doubleColumns.contains(column.Name) && !value.isNull())
        return QString::number(value.toDouble() + 0.0, 'g', 15);
    const QString text = textOf(value);
    return text.isEmpty() ? QString("Null") : text;
}

/// The rows of a table in our database and in the CSV, each sorted, in the columns of the CSV except `but`.
struct BothRows
{
    QStringList ours, expected;
};
inline BothRows rowsOf(Database &database, const OldFile &file, const QString &table, const QString &but = {})
{
    const auto csv = readCsv(QString(OMK_OLD_FILES "/rows-%1/%2.csv").arg(file.version, table));
    const auto fields = database.Fields(table);
    for (const auto &column : csv[0])
        EXPECT_TRUE(std::ranges::any_of(fields, [&](const FieldDef &field) { return field.Name == *column; }))
            << column->toStdString();
    BothRows both;
    const auto add = [&](QStringList &lines, const std::function<QString(std::size_t, const FieldDef &)> &text) {
        QStringList line;
        for (std::size_t column = 0; column < csv[0].size(); ++column)
            for (const FieldDef &field : fields)
                if (field.Name == *csv[0][column] && field.Name != but)
                    line << field.Name + '=' + text(column, field);
        lines << line.join('|');
    };
    for (Recordset rows = database.OpenRecordset("SELECT * FROM " + table); !rows.EOF_(); rows.MoveNext())
        add(both.ours, [&](std::size_t, const FieldDef &field) { return textOf(rows[field.Name].value(), field); });
    for (std::size_t row = 1; row < csv.size(); ++row)
        add(both.expected, [&](std::size_t at, const FieldDef &field) { return expectedText(csv[row][at], field); });
    both.ours.sort();
    both.expected.sort();
    return both;
}

/// Reports only the first row that differs.
inline void expectSame(const BothRows &rows, const QString &table)
{
    EXPECT_EQ(rows.ours.size(), rows.expected.size()) << table.toStdString();
    for (qsizetype row = 0; row < std::min(rows.ours.size(), rows.expected.size()); ++row)
        if (rows.ours[row] != rows.expected[row]) {
            EXPECT_EQ(rows.ours[row], rows.expected[row]) << table.toStdString();
            return;
        }
}
