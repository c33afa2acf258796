#include "data/Export.h"

#include <memory>

#include <QDir>

#include "data/CsvWriter.h"
#include "data/ReminderDetail.h"
#include "data/Tables.h"
#include "logic/shell/Globals.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Iso.h"

namespace {

struct Tank
{
    QString name, id;
};

const QString allTanks = QStringLiteral("SELECT tankname, tankid FROM TANKLST ORDER BY tankname COLLATE CASEBLIND");
const QString config = QStringLiteral("SELECT * FROM CONFIG");

/// The tanks that meet the condition, in the order of their names.
template <class Chosen> std::vector<Tank> tanksOf(Database &database, Chosen chosen)
{
    std::vector<Tank> tanks;
    for (RowStream row = database.OpenForwardOnly(allTanks); !row.EOF_(); row.MoveNext()) {
        const Tank tank{row.text(QStringLiteral("tankname")), row.text(QStringLiteral("tankid"))};
        if (chosen(tank))
            tanks.push_back(tank);
    }
    return tanks;
}

/// Writes the rows of one table.
class TableExport
{
public:
    TableExport(const Globals &globals, const DataTable &table, CsvWriter &csv) : g(globals), m_table(table), m_csv(csv)
    {
        for (const DataColumn &column : table.columns)
            m_csv.bare(column.name.toStdString());
        m_csv.endRow();
    }

    /// Writes the entries of a tank, or in the table of tanks the tank itself.
    void writeTank(const Tank &tank)
    {
        const QString column = m_table.isTanks() ? QStringLiteral("tankid") : m_table.column;
        write(QStringLiteral(" WHERE %1 = ?").arg(column), {tank.id}, tank.name);
    }
    void writeAll() { write({}, {}, {}); }
    qint64 rows() const { return m_rows; }

private:
    void write(const QString &condition, const Parameters &parameters, const QString &tank);
    void writeCell(const Rows &row, int column, const QString &tank);
    void writeValue(const Rows &row, int column);
    RecurrenceRule ruleOf(const Rows &row) const;
    QString order() const;

    const Globals &g;
    const DataTable &m_table;
    CsvWriter &m_csv;
    qint64 m_rows = 0;
};

/// Rows are in the order of their keys, because the unique index gives this order without sorting.
QString TableExport::order() const
{
    QStringList keys;
    for (const DataColumn &column : m_table.columns)
        if (column.isKey)
            keys << column.stored;
    return u" ORDER BY " + keys.join(u", ");
}

void TableExport::write(const QString &condition, const Parameters &parameters, const QString &tank)
{
    QStringList columns;
    for (const DataColumn &column : m_table.columns)
        columns << column.stored;
    const QString sql = u"SELECT " + columns.join(u", ") + u" FROM " + m_table.table + condition + order();
    for (RowStream row = g.gDatabase->OpenForwardOnly(sql, parameters); !row.EOF_(); row.MoveNext(), ++m_rows) {
        for (int column = 0; column < int(m_table.columns.size()); ++column)
            writeCell(row.row(), column, tank);
        m_csv.endRow();
    }
}

RecurrenceRule TableExport::ruleOf(const Rows &row) const
{
    const auto number = [&](const char *name) { return qint16(row.number(0, m_table.find(QLatin1String(name)))); };
    RecurrenceRule rule;
    rule.RecurrenceType = number("pattern");
    rule.RecurrenceSubtype = number("variant");
    rule.RecurrenceDetail = row.text(0, m_table.find(QStringLiteral("detail")));
    return rule;
}

void TableExport::writeCell(const Rows &row, int column, const QString &tank)
{
    const CellKind kind = m_table.columns[std::size_t(column)].kind;
    if (kind == CellKind::Tank)
        return m_csv.text(tank);
    if (row.isNull(0, column))
        return m_csv.null();
    if (kind == CellKind::Detail)
        return m_csv.text(DetailInWords(ruleOf(row), g.options.DateOrder));
    if (kind == CellKind::WaterType || kind == CellKind::Pattern)
        if (const QString word = WordOf(kind, row.value(0, column)); !word.isEmpty())
            return m_csv.text(word);
    writeValue(row, column);
}

/// Writes a value by its own type, because another program may have stored a text in a column of numbers.
void TableExport::writeValue(const Rows &row, int column)
{
    if (const std::string_view utf8 = row.utf8(0, column); !utf8.empty())
        return m_csv.text(utf8);
    const Value value = row.value(0, column);
    const auto bare = [this](const QByteArray &text) { m_csv.bare({text.constData(), std::size_t(text.size())}); };
    if (const auto *number = std::get_if<double>(&value.variant()))
        m_csv.number(*number);
    else if (const auto *whole = std::get_if<qint64>(&value.variant()))
        bare(QByteArray::number(*whole));
    else if (const auto *date = std::get_if<QDate>(&value.variant()))
        bare(isoText(*date));
    else if (const auto *time = std::get_if<QTime>(&value.variant()))
        bare(isoText(*time));
    else
        m_csv.text(std::string_view());
}

qint64 writeTable(const Globals &g, const DataTable &table, const std::vector<Tank> &tanks, CsvWriter &csv)
{
    TableExport rows(g, table, csv);
    if (table.isReminders)
        rows.writeAll();
    else
        for (const Tank &tank : tanks)
            rows.writeTank(tank);
    csv.end();
    return rows.rows();
}

qint64 entriesOfNoTank(Database &database, const DataTable &table)
{
    if (table.column.isEmpty())
        return 0;
    const QString sql = QStringLiteral("SELECT count(*) AS entries FROM %1 WHERE %2 IS NULL OR %2 NOT IN "
                                       "(SELECT tankid FROM TANKLST WHERE tankid IS NOT NULL)");
    return qint64(database.OpenRecordset(sql.arg(table.table, table.column)).rows()->number(0, 0));
}

/// The tables that are exported. With a tank there are no reminders, because they do not belong to a tank.
std::vector<DataTable> tablesFor(const Globals &g, const ExportOptions &options)
{
    std::vector<DataTable> tables = DataTables(g, Now());
    if (!options.tank.isEmpty())
        std::erase_if(tables, [](const DataTable &table) { return table.isReminders; });
    return tables;
}

std::optional<QString> refusal(const ExportOptions &options, const std::vector<DataTable> &tables,
                               const std::vector<Tank> &tanks)
{
    if (!options.tank.isEmpty() && tanks.empty())
        return QStringLiteral("There is no tank named \"%1\".").arg(options.tank);
    for (const DataTable &table : tables)
        if (!options.replaces && QDir(options.folder).exists(table.file))
            return QStringLiteral(
                       "The folder has a file %1 already. Nothing was written. (--force replaces such files.)")
                .arg(table.file);
    return std::nullopt;
}

} // namespace

ExportResult Export(const Globals &g, const ExportOptions &options)
{
    ExportResult result;
    // No other program can change the database while this query is open, so all files show the same state.
    const RowStream hold = g.gDatabase->OpenForwardOnly(config);
    const std::vector<DataTable> tables = tablesFor(g, options);
    const std::vector<Tank> tanks =
        tanksOf(*g.gDatabase, [&](const Tank &tank) { return options.tank.isEmpty() || tank.name == options.tank; });
    if (const auto reason = refusal(options, tables, tanks)) {
        result.refusal = *reason;
        return result;
    }
    const QDir folder(options.folder);
    if (!folder.mkpath(QStringLiteral(".")))
        throw RuntimeFailure(Failure::PathNotFound, QStringLiteral("Making the folder %1.").arg(options.folder));
    std::vector<std::unique_ptr<CsvWriter>> files;
    for (const DataTable &table : tables) {
        const QString path = folder.filePath(table.file);
        files.push_back(std::make_unique<CsvWriter>(path));
        result.files.push_back({path, writeTable(g, table, tanks, *files.back())});
        if (options.tank.isEmpty())
            result.lost += entriesOfNoTank(*g.gDatabase, table);
    }
    for (const auto &file : files)
        file->giveName(options.replaces);
    return result;
}

qint64 ExportLog(const Globals &g, LogTab log, const std::optional<QString> &tankId, const QString &fileName)
{
    const std::vector<DataTable> tables = DataTables(g, Now());
    const DataTable &table =
        tables[std::size_t(log) + 1]; // the tanks come first, then the logs in the order of the tabs
    CsvWriter csv(fileName);
    const qint64 rows = writeTable(
        g, table, tanksOf(*g.gDatabase, [&](const Tank &tank) { return !tankId || tank.id == *tankId; }), csv);
    csv.giveName(true);
    return rows;
}

void ExportSchedule(const std::vector<ScheduledTask> &tasks, const QString &fileName)
{
    CsvWriter csv(fileName);
    csv.bare("date");
    csv.bare("reminder");
    csv.endRow();
    for (const ScheduledTask &task : tasks) {
        csv.bare(isoText(task.date).toStdString());
        csv.text(task.task);
        csv.endRow();
    }
    csv.end();
    csv.giveName(true);
}
