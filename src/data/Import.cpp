#include "data/Import.h"

#include <algorithm>
#include <unordered_set>

#include "data/Cells.h"
#include "data/CsvReader.h"
#include "data/Header.h"
#include "data/ReminderDetail.h"
#include "logic/shell/Globals.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"

namespace {

using TellFault = std::function<void(const ImportFault &)>;
using TellHeader = std::function<void(const QString &name, const QString &reason)>;

constexpr qsizetype longestShownValue = 60;

const QString tankNames = QStringLiteral("SELECT tankname, tankid FROM tanklst");

QHash<QString, QString> tanksByName(Database &database)
{
    QHash<QString, QString> ids;
    for (RowStream row = database.OpenForwardOnly(tankNames); !row.EOF_(); row.MoveNext())
        ids.insert(row.text(QStringLiteral("tankname")), row.text(QStringLiteral("tankid")));
    return ids;
}

/// A text as a keeper sees it: nothing is an empty text, and all line ends look the same.
QString shownText(const Value &value)
{
    QString text = value.isNull() ? QString() : value.text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return text;
}

QString joined(const QStringList &names, const QString &with = QStringLiteral(", ")) { return names.join(with); }

/// Stores the rows of one file in one table.
class RowImport
{
public:
    RowImport(const Globals &g, const Header &header, const ImportOptions &options, const QDateTime &now,
              ImportResult &result, const TellFault &tell);
    /// Checks and stores the current record of the reader.
    void take(const CsvReader &reader);

private:
    bool read(const std::vector<CsvCell> &cells);
    bool completeReminder();
    void store();
    void meetExisting();
    bool isEqual(std::size_t place, const Value &stored) const;
    RecurrenceRule ruleOf(const std::vector<Value> &values) const;
    Value &valueOf(const char *name) { return m_values[std::size_t(m_table.find(QLatin1String(name)))]; }
    Parameters keyValues() const;
    void tell(const QString &column, const QString &value, const QString &reason);

    const Globals &g;
    Database &m_database;
    const Header &m_header;
    const DataTable &m_table;
    const ImportOptions &m_options;
    ImportResult &m_result;
    const TellFault &m_tell;
    CellContext m_context;
    QDateTime m_newTank; ///< the date and time from which the next new tank gets its tankid
    QString m_insert, m_select, m_update;
    std::vector<std::size_t> m_given; ///< the columns that are in the file and not part of the key
    qint64 m_lastBefore = 0;          ///< the number of the last row of the table before the import
    std::unordered_set<qint64> m_replaced;
    qint64 m_line = 0;
    std::vector<Value> m_starts, m_values; ///< initial and current value for each column of the table
    QStringList m_texts;                   ///< the values of the row as in the file
};

RowImport::RowImport(const Globals &globals, const Header &header, const ImportOptions &options, const QDateTime &now,
                     ImportResult &result, const TellFault &tell) :
    g(globals),
    m_database(*globals.gDatabase), m_header(header), m_table(*header.table), m_options(options), m_result(result),
    m_tell(tell), m_context{options, tanksByName(m_database)}, m_newTank(now)
{
    QStringList columns, marks, keys, given, assignments;
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const DataColumn &column = m_table.columns[i];
        m_starts.push_back(column.start);
        columns << column.stored;
        marks << QStringLiteral("?");
        if (column.isKey) {
            keys << column.stored + u" = ?";
        } else if (header.has(int(i))) {
            m_given.push_back(i);
            given << column.stored;
            assignments << column.stored + u" = ?";
        }
    }
    if (m_table.isTanks()) {
        columns << QStringLiteral("tankid");
        marks << QStringLiteral("?");
    }
    const QString &table = m_table.table;
    m_insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ON CONFLICT DO NOTHING")
                   .arg(table, joined(columns), joined(marks));
    m_select = QStringLiteral("SELECT %2 FROM %1 WHERE %3")
                   .arg(table, joined(QStringList{QStringLiteral("rowid AS place")} + given),
                        joined(keys, QStringLiteral(" AND ")));
    m_update = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?").arg(table, joined(assignments));
    const auto last = m_database.OpenRecordset(QStringLiteral("SELECT max(rowid) AS last FROM ") + table);
    m_lastBefore = qint64(last.rows()->number(0, 0));
}

void RowImport::tell(const QString &column, const QString &value, const QString &reason)
{
    ++m_result.faults;
    m_tell({m_line, column, value, reason});
}

void RowImport::take(const CsvReader &reader)
{
    m_line = reader.line();
    if (reader.cellCount() != m_header.places.size()) {
        tell({}, {},
             QStringLiteral("The row has %1 values, but the header has %2 columns.")
                 .arg(reader.cellCount())
                 .arg(m_header.places.size()));
        return;
    }
    if (read(reader.cells()) && (!m_table.isReminders || completeReminder()))
        store();
}

bool RowImport::read(const std::vector<CsvCell> &cells)
{
    bool good = true;
    m_values = m_starts;
    m_texts.clear();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        m_texts << QString();
        if (m_header.places[i] == Header::leftOut)
            continue;
        const auto place = std::size_t(m_header.places[i]);
        const auto text = DecodedText(cells[i]);
        const auto *decoded = std::get_if<QString>(&text);
        m_texts.back() =
            decoded ? *decoded : QString::fromUtf8(cells[i].bytes.data(), qsizetype(cells[i].bytes.size()));
        const auto value = decoded ? ReadCell(m_table.columns[place], cells[i], *decoded, m_context)
                                   : std::variant<Value, Refusal>(std::get<Refusal>(text));
        if (const auto *refusal = std::get_if<Refusal>(&value)) {
            tell(m_header.names[qsizetype(i)], m_texts.back(), refusal->reason);
            good = false;
        } else {
            m_values[place] = std::get<Value>(value);
        }
    }
    return good;
}

RecurrenceRule RowImport::ruleOf(const std::vector<Value> &values) const
{
    const auto value = [&](const char *name) { return values[std::size_t(m_table.find(QLatin1String(name)))]; };
    const auto date = [&](const char *name) { return value(name).isNull() ? QDate() : value(name).toDate(); };
    const auto number = [&](const char *name) { return qint16(value(name).toDoubleOr(0)); };
    return {.TaskDescription = value("reminder").text(),
            .StartDate = date("start_date"),
            .EndDate = date("end_date"),
            .RecurrenceInterval = number("interval"),
            .RecurrenceType = number("pattern"),
            .RecurrenceSubtype = number("variant"),
            .RecurrenceDetail = value("detail").text(),
            .EnglishDescription = value("sentence").text()};
}

/// Checks the row as the reminder editor does, and fills in the detail and, if the file has no column for it, the
/// sentence.
bool RowImport::completeReminder()
{
    RecurrenceRule rule = ruleOf(m_values);
    const auto refuse = [&](const char *name, const QString &reason) {
        const auto at = std::ranges::find(m_header.places, m_table.find(QLatin1String(name))) - m_header.places.begin();
        tell(m_header.names.value(at, QLatin1String(name)), m_texts.value(at), reason);
        return false;
    };
    if (rule.RecurrenceSubtype != 0 && rule.RecurrenceSubtype != 1)
        return refuse("variant", QStringLiteral("This must be 0 or 1."));
    const auto detail = DetailFromWords(rule, rule.RecurrenceDetail,
                                        [this](const QString &text) { return ReadFileDate(text, m_options); });
    if (!detail)
        return refuse(
            "detail",
            QStringLiteral("This must be like \"%1\" for the pattern of the reminder.").arg(ExampleOfDetail(rule)));
    rule.RecurrenceDetail = *detail;
    if (const auto complaint = CompleteRule(rule, {g.options.DateOrder, g.options.DatePicture}))
        return refuse(complaint->column, complaint->text);
    if (!valueOf("detail").isNull() || !rule.RecurrenceDetail.isEmpty())
        valueOf("detail") = rule.RecurrenceDetail;
    if (!m_header.has(m_table.find(QStringLiteral("sentence"))))
        valueOf("sentence") = rule.EnglishDescription;
    return true;
}

Parameters RowImport::keyValues() const
{
    Parameters keys;
    for (std::size_t i = 0; i < m_values.size(); ++i)
        if (m_table.columns[i].isKey)
            keys.push_back(m_values[i]);
    return keys;
}

void RowImport::store()
{
    Parameters values = m_values;
    if (m_table.isTanks())
        values.push_back(NewTankId(m_database, m_newTank));
    if (m_database.Execute(m_insert, values) > 0)
        ++m_result.added;
    else
        meetExisting();
}

/// Whether a keeper sees the same value. A spreadsheet that has saved the file again leaves out the quotation marks of
/// empty texts and has its own line ends. Two details of a reminder are equal if they mean the same: a date may be
/// stored with two or four digits of its year.
bool RowImport::isEqual(std::size_t place, const Value &stored) const
{
    const Value &given = m_values[place];
    const CellKind kind = m_table.columns[place].kind;
    if (given == stored || (IsText(kind) && shownText(given) == shownText(stored)))
        return true;
    if (kind != CellKind::Detail)
        return false;
    const RecurrenceRule ours = ruleOf(m_values);
    RecurrenceRule theirs = ours;
    theirs.RecurrenceDetail = stored.text();
    return ours.is(Pattern::Once) &&
           DetailInWords(ours, g.options.DateOrder) == DetailInWords(theirs, g.options.DateOrder);
}

/// Called if the table already has a row with the same key.
void RowImport::meetExisting()
{
    const Recordset found = m_database.OpenRecordset(m_select, keyValues());
    const auto rows = found.rows();
    if (rows->count() == 0)
        throw RuntimeFailure(Failure::DuplicateKey, QStringLiteral("Adding a row to %1.").arg(m_table.table));
    const auto differs = [&](std::size_t i) { return !isEqual(m_given[i], rows->value(0, int(i) + 1)); };
    std::size_t different = 0;
    while (different < m_given.size() && !differs(different))
        ++different;
    if (different == m_given.size()) {
        ++m_result.passedOver;
        return;
    }
    const auto place = qint64(rows->number(0, 0));
    const bool isOfThisFile = place > m_lastBefore || m_replaced.contains(place);
    if (isOfThisFile || !m_options.replaces) {
        const int column = int(m_given[different]);
        const auto at = std::ranges::find(m_header.places, column) - m_header.places.begin();
        tell(m_header.names.value(at), m_texts.value(at),
             isOfThisFile ? QStringLiteral("An earlier line of the file is the same %1 with another value here.")
                                .arg(m_table.entry)
                          : QStringLiteral("This %1 is there already, with \"%2\" here. (--replace puts the values of "
                                           "the file in their place.)")
                                .arg(m_table.entry, rows->text(0, int(different) + 1)));
        return;
    }
    Parameters values;
    for (const std::size_t column : m_given)
        values.push_back(m_values[column]);
    values.push_back(place);
    m_database.Execute(m_update, values);
    m_replaced.insert(place);
    ++m_result.replaced;
}

/// The names in the first record of the file. Returns nothing, and reports the fault, if there are none.
std::optional<QStringList> namesIn(CsvReader &reader, const TellHeader &tell)
{
    if (!reader.next()) {
        if (!reader.fault())
            tell({}, QStringLiteral("The file is empty. Its first line must name the columns."));
        return std::nullopt;
    }
    if (reader.cellCount() > CsvReader::mostCells) {
        tell({}, QStringLiteral("The header has more than %1 columns.").arg(CsvReader::mostCells));
        return std::nullopt;
    }
    QStringList names;
    for (const CsvCell &cell : reader.cells()) {
        const auto text = DecodedText(cell);
        if (const auto *refusal = std::get_if<Refusal>(&text)) {
            tell({}, refusal->reason);
            return std::nullopt;
        }
        names << std::get<QString>(text);
    }
    return names;
}

/// Makes this the tank of all entries of a file without a column for the tank.
void startWithTank(std::vector<DataTable> &tables, const QString &tankId)
{
    for (DataTable &table : tables)
        for (DataColumn &column : table.columns)
            if (column.kind == CellKind::Tank)
                column.start = tankId;
}

/// Reads the first record and finds its table among `tables`. Returns nothing, and reports the faults, if that fails.
std::optional<Header> headerOf(CsvReader &reader, Database &database, std::vector<DataTable> &tables,
                               const ImportOptions &options, const TellHeader &tell)
{
    if (!options.tank.isEmpty()) {
        const QHash<QString, QString> ids = tanksByName(database);
        if (!ids.contains(options.tank)) {
            tell({}, QStringLiteral("There is no tank named \"%1\".").arg(options.tank));
            return std::nullopt;
        }
        startWithTank(tables, ids.value(options.tank));
    }
    const auto names = namesIn(reader, tell);
    return names ? ReadHeader(tables, *names, options, tell) : std::nullopt;
}

} // namespace

std::optional<std::vector<std::pair<QString, QString>>> ReadMap(const QString &text)
{
    std::vector<std::pair<QString, QString>> map;
    QString name;
    for (const QString &part : text.split(u',')) {
        name += (name.isEmpty() ? QString() : QStringLiteral(",")) + part;
        const qsizetype sign = name.lastIndexOf(u'=');
        if (sign < 0)
            continue; // the name contains a comma
        map.emplace_back(name.left(sign).trimmed(), name.mid(sign + 1).trimmed());
        name.clear();
    }
    return name.trimmed().isEmpty() ? std::optional(map) : std::nullopt;
}

QString FaultText(const ImportFault &fault)
{
    QString value = fault.value.left(longestShownValue);
    if (value.size() < fault.value.size())
        value += u'\u2026';
    QString text = QStringLiteral("line %1").arg(fault.line);
    if (!fault.column.isEmpty())
        text += u", " + fault.column;
    if (!value.isEmpty())
        text += u" \"" + value + u'"';
    text += u": " + fault.reason;
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    return text;
}

ImportResult Import(const Globals &g, const QString &fileName, const ImportOptions &options, const TellFault &tell)
{
    ImportResult result;
    CsvReader reader(fileName, options.delimiter);
    const QDateTime now = Now();
    std::vector<DataTable> tables = DataTables(g, now);
    const auto tellHeader = [&](const QString &name, const QString &reason) {
        ++result.faults;
        tell({std::max(reader.line(), qint64{1}), name, {}, reason});
    };
    if (const auto header = headerOf(reader, *g.gDatabase, tables, options, tellHeader)) {
        result.entry = header->table->entry;
        Database::Transaction whole(*g.gDatabase);
        RowImport rows(g, *header, options, now, result, tell);
        while (reader.next())
            rows.take(reader);
        if (result.faults == 0 && !reader.fault() && !options.isDryRun)
            whole.commit();
    }
    if (reader.fault()) {
        ++result.faults;
        tell({reader.fault()->line, {}, {}, reader.fault()->reason});
    }
    return result;
}
