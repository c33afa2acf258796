// A made-up file of the old engine. It starts with the empty tables of a version, and a test then changes tables,
// columns and rows.
#pragma once

#include <map>

#include <QTemporaryDir>
#include <QtEndian>

#include "oldengine/OldCopy.h"
#include "OldFiles.h"
#include "store/Upgrade.h"

template <class Number> QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// UTF-16, in which Jet 4 stores texts.
inline QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += bytesOf(c.unicode());
    return bytes;
}

struct FakeSource : OldSource
{
    /// A cell is Null if its column is not named, and unreadable if its bytes are "?".
    using FakeRow = std::map<QString, QByteArray>;

    explicit FakeSource(const QString &version = QStringLiteral("2.0 "))
    {
        const QTemporaryDir folder;
        CreateDatabase(folder.filePath("OM.MDB"));
        const auto database = Database::OpenDatabase(folder.filePath("OM.MDB"));
        for (const QString &name : tableNames) {
            all.push_back({name, {}, 0});
            for (const FieldDef &field : database->Fields(name))
                if (!IsOfLaterVersion(version, name, field.Name)) // the two enumerations have the same numbers
                    all.back().columns.push_back(
                        {field.Name, field.Type == FieldType::Time ? OldType::Date : OldType(field.Type), 0});
        }
        row("CONFIG", version == "0.0 " ? FakeRow{{"default_salt", "\1"}} : FakeRow{{"db_version", utf16(version)}});
    }

    int codePage() const override { return 0; }
    const std::vector<OldTable> &tables() const override { return all; }
    qint64 readRows(const OldTable &of, const std::function<void(std::span<const OldCell>)> &take) override
    {
        for (const FakeRow &row : rows[of.name.toUpper()]) {
            std::vector<OldCell> cells;
            for (const OldColumn &column : of.columns) {
                const auto cell = row.find(column.name);
                if (cell == row.end())
                    cells.emplace_back();
                else if (cell->second == "?")
                    cells.push_back({OldCell::State::Unreadable, {}});
                else
                    cells.push_back({OldCell::State::Present, cell->second});
            }
            take(cells);
        }
        return lost[of.name];
    }

    OldTable &table(const QString &name) { return *std::ranges::find(all, name, &OldTable::name); }
    void row(const QString &name, const FakeRow &row)
    {
        rows[name].push_back(row);
        ++table(name).rows;
    }

    std::vector<OldTable> all;
    std::map<QString, std::vector<FakeRow>> rows;
    std::map<QString, qint64> lost; ///< by table: how many of its rows cannot be read
};
