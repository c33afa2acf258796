#include "data/Header.h"

#include <algorithm>

#include "data/Import.h"

namespace {

using Tell = std::function<void(const QString &, const QString &)>;

/// A name in the header, and the column that it stands for in the user's map; empty if its values are left out.
struct NamedColumn
{
    QString name, column;
};

std::optional<QString> mapped(const QString &name, const ImportOptions &options)
{
    for (const auto &[from, to] : options.map)
        if (name.compare(from.trimmed(), Qt::CaseInsensitive) == 0)
            return to.trimmed();
    return std::nullopt;
}

bool mapIsGood(const QStringList &names, const ImportOptions &options, const Tell &tell)
{
    bool good = true;
    for (const auto &[from, to] : options.map)
        if (!names.contains(from.trimmed(), Qt::CaseInsensitive)) {
            tell(from, QStringLiteral("The map names this column, but the header does not have it."));
            good = false;
        }
    return good;
}

bool namesAreGood(const std::vector<NamedColumn> &columns, const Tell &tell)
{
    bool good = true;
    QStringList seen;
    for (const NamedColumn &column : columns) {
        if (column.name.isEmpty() && column.column.isEmpty()) {
            tell({}, QStringLiteral("A column of the header has no name."));
            good = false;
        } else if (!column.column.isEmpty() && seen.contains(column.column, Qt::CaseInsensitive)) {
            tell(column.name, QStringLiteral("The header has this column twice."));
            good = false;
        }
        seen << column.column;
    }
    return good;
}

QStringList namesOf(const DataTable &table)
{
    QStringList names;
    for (const DataColumn &column : table.columns)
        names << column.name;
    return names;
}

qsizetype knownIn(const DataTable &table, const std::vector<NamedColumn> &columns)
{
    return std::ranges::count_if(columns, [&](const NamedColumn &c) { return table.find(c.column) >= 0; });
}

bool namesTanks(const std::vector<NamedColumn> &columns)
{
    return std::ranges::any_of(
        columns, [](const NamedColumn &c) { return c.column.compare(u"tank", Qt::CaseInsensitive) == 0; });
}

/// The columns that the table needs and the header lacks.
QStringList missingIn(const DataTable &table, const std::vector<NamedColumn> &columns)
{
    QStringList missing;
    for (const DataColumn &needed : table.columns) {
        const bool isThere = std::ranges::any_of(
            columns, [&](const NamedColumn &c) { return needed.name.compare(c.column, Qt::CaseInsensitive) == 0; });
        if (needed.isNeeded() && !isThere)
            missing << needed.name;
    }
    return missing;
}

/// Reports why the columns are not those of any table, by comparing them with the table that has most of them.
void tellNoTable(std::span<const DataTable> tables, const std::vector<NamedColumn> &columns, qsizetype count,
                 const Tell &tell)
{
    std::vector<qsizetype> known;
    for (const DataTable &table : tables)
        known.push_back(knownIn(table, columns));
    const qsizetype most = std::ranges::max(known);
    if (most == 0) {
        const QString hint =
            count == 1 ? QStringLiteral(" Perhaps another delimiter separates its values.") : QString();
        tell({}, u"The header has no column that is known." + hint);
        return;
    }
    const DataTable &closest = tables[std::size_t(std::ranges::find(known, most) - known.begin())];
    const bool isClear = std::ranges::count(known, most) == 1;
    for (const NamedColumn &column : columns)
        if (!column.column.isEmpty() && closest.find(column.column) < 0)
            tell(column.name, isClear ? QStringLiteral("%1 has no such column. It has %2. (See --map.)")
                                            .arg(closest.file, namesOf(closest).join(u", "))
                                      : QStringLiteral("No table has this column beside the others."));
    if (most == count)
        for (const QString &missing : missingIn(closest, columns))
            tell(missing, QStringLiteral("%1 must have this column.").arg(closest.file));
}

const DataTable *tableOf(std::span<const DataTable> tables, const std::vector<NamedColumn> &columns, const Tell &tell)
{
    const qsizetype count = std::ranges::count_if(columns, [](const NamedColumn &c) { return !c.column.isEmpty(); });
    std::vector<const DataTable *> fitting;
    for (const DataTable &table : tables)
        if (count > 0 && knownIn(table, columns) == count && missingIn(table, columns).isEmpty())
            fitting.push_back(&table);
    if (fitting.size() == 1)
        return fitting.front();
    if (fitting.empty())
        tellNoTable(tables, columns, count, tell);
    else
        tell({}, QStringLiteral("The columns could be those of %1 and of %2. Add one that only one of them has.")
                     .arg(fitting[0]->file, fitting[1]->file));
    return nullptr;
}

} // namespace

bool Header::has(int place) const { return std::ranges::find(places, place) != places.end(); }

std::optional<Header> ReadHeader(std::span<const DataTable> tables, const QStringList &names,
                                 const ImportOptions &options, const Tell &tell)
{
    std::vector<NamedColumn> columns;
    QStringList trimmed;
    for (const QString &name : names) {
        trimmed << name.trimmed();
        columns.push_back({name.trimmed(), mapped(name.trimmed(), options).value_or(name.trimmed())});
    }
    const bool good = mapIsGood(trimmed, options, tell);
    if (!namesAreGood(columns, tell) || !good)
        return std::nullopt;
    const DataTable *table = tableOf(tables, columns, tell);
    if (!table)
        return std::nullopt;
    if (!options.tank.isEmpty() && !table->column.isEmpty() && namesTanks(columns)) {
        tell(QStringLiteral("tank"),
             QStringLiteral("The file names the tanks itself, so that none can be chosen for it."));
        return std::nullopt;
    }
    Header header{table, trimmed, {}};
    for (const NamedColumn &column : columns)
        header.places.push_back(column.column.isEmpty() ? Header::leftOut : table->find(column.column));
    return header;
}
