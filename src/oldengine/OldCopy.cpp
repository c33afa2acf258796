#include "oldengine/OldCopy.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <memory>
#include <unistd.h>

#include <QFile>
#include <QHash>

#include "store/Connection.h"
#include "store/Draft.h"
#include "store/NewDatabase.h"
#include "store/schema.h"
#include "store/Upgrade.h"
#include "store/Version.h"

namespace {

/// The columns that must be unique in a table. A second row with the same values is changed: in a log it moves to the
/// next free second, elsewhere its texts get a number.
struct Key
{
    const char *table;
    const char *date, *time;         ///< null in a table that is not a log
    std::vector<const char *> texts; ///< in a log unique together with date and time, elsewhere each by itself
};

const std::vector<Key> keys{
    {"TANKLST", nullptr, nullptr, {"tankname", "tankid"}},
    {"WATERLOG", "logdate", "logtime", {"tankname"}},
    {"LIVESTOCK", "dateadded", "timeadded", {"tankname", "animalname"}},
    {"MAINTLOG", "maintlogdate", "maintlogtime", {"mainttankname"}},
    {"MAINTSCHED", nullptr, nullptr, {"SchedTask"}},
};

const Key *keyOf(const QString &table)
{
    const auto key = std::ranges::find_if(keys, [&](const Key &k) { return table == QLatin1String(k.table); });
    return key == keys.end() ? nullptr : &*key;
}

bool isSame(const QString &one, const QString &other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

const OldTable *find(const std::vector<OldTable> &tables, const QString &name)
{
    const auto table = std::ranges::find_if(tables, [&](const OldTable &t) { return isSame(t.name, name); });
    return table == tables.end() ? nullptr : &*table;
}

int find(const OldTable &table, const QString &name)
{
    const auto column = std::ranges::find_if(table.columns, [&](const OldColumn &c) { return isSame(c.name, name); });
    return column == table.columns.end() ? -1 : int(column - table.columns.begin());
}

constexpr int rowsBetweenProgress = 256;

class Copy
{
public:
    Copy(OldSource &source, const QString &draft, const std::function<void(const OldProgress &)> &progress) :
        m_source(source), m_texts(source.codePage()), m_draft(draft), m_progress(progress),
        m_doing(QStringLiteral("Writing what was read into a new database."))
    {
    }
    OldOutcome run();

private:
    /// A column of the new table.
    struct Column
    {
        QString name;
        ColumnKind kind;
        int from;       ///< index of the column in the old table
        int unread = 0; ///< how many values could not be read so far
    };
    struct Target
    {
        QString name;
        const OldTable *from;
        std::vector<Column> columns;
        QString insert;
    };
    using Row = std::vector<Value>;

    const OldTable &require(const QString &table) const;
    QString readVersion();
    Target prepare(const QString &table);
    void copyRows(Target &target);
    Row valuesOf(std::span<const OldCell> cells, Target &target) const;
    bool insert(const Target &target, const Row &row);
    void insertMoved(const Target &target, const Key &key, Row row, QHash<QString, QDateTime> &last);
    void insertNumbered(const Target &target, const Key &key, Row row);
    void tellUnread(const Target &target, qint64 lostRows, qint64 rows);
    void tellLeftOut();
    void check();
    Rows ask(const QString &sql, const Row &values = {});
    void tellProgress(const QString &table);

    OldSource &m_source;
    OldTextReader m_texts;
    QString m_draft;
    const std::function<void(const OldProgress &)> &m_progress;
    QString m_doing, m_version;
    std::shared_ptr<Connection> m_connection;
    std::vector<Target> m_targets;
    OldOutcome m_outcome;
    qint64 m_rowsDone = 0, m_rowsOfAll = 0;
};

OldOutcome Copy::run()
{
    for (const schema::Table &table : schema::tables())
        m_rowsOfAll += require(QLatin1String(table.name)).rows;
    m_version = readVersion();
    m_connection = std::make_shared<Connection>(m_draft);
    // An incomplete draft is thrown away, so it needs no journal, and only one sync at the end.
    m_connection->run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN", m_doing);
    WriteEmptyTables(*m_connection, m_doing);
    for (const schema::Table &table : schema::tables())
        m_targets.push_back(prepare(QLatin1String(table.name)));
    for (Target &target : m_targets)
        copyRows(target);
    tellLeftOut();
    const QString number = QStringLiteral("PRAGMA user_version = %1").arg(NumberOfVersion(m_version));
    m_connection->run(number.toLatin1().constData(), m_doing);
    m_connection->run("COMMIT", m_doing);
    check();
    return m_outcome;
}

const OldTable &Copy::require(const QString &table) const
{
    const OldTable *from = find(m_source.tables(), table);
    if (!from)
        throw RuntimeFailure(
            Failure::NoSuchColumn,
            QStringLiteral("The file has no table %1. It is damaged, or it belongs to another program.").arg(table));
    if (from->columns.empty())
        throw RuntimeFailure(Failure::UnrecognizedFormat,
                             QStringLiteral("The description of the table %1 cannot be read.").arg(table));
    return *from;
}

/// In the form that ReadDatabaseVersion returns.
QString Copy::readVersion()
{
    const OldTable &config = require(QStringLiteral("CONFIG"));
    const int at = find(config, QStringLiteral("db_version"));
    std::optional<QString> version;
    m_source.readRows(config, [&](std::span<const OldCell> cells) {
        if (version)
            return;
        version = at < 0 ? QStringLiteral("0.0 ") : QString();
        if (at >= 0 && cells[std::size_t(at)].state == OldCell::State::Present)
            version = m_texts.read(cells[std::size_t(at)].bytes).value_or(QString());
    });
    if (!version)
        throw RuntimeFailure(Failure::UnrecognizedFormat, QStringLiteral("The table CONFIG has no row."));
    if (NumberOfVersion(*version) == 0)
        throw RuntimeFailure(
            Failure::UnrecognizedFormat,
            QStringLiteral("The file is of version \"%1\", which this program does not know.").arg(*version));
    return *version;
}

/// Finds the columns of a new table in the old one. Columns of a later version that the old table does not have are
/// removed from the new one.
Copy::Target Copy::prepare(const QString &table)
{
    Target target{table, &require(table), {}, {}};
    const Rows all = ask(QStringLiteral("SELECT name, type FROM pragma_table_info(?)"), {table});
    QStringList names;
    for (qsizetype row = 0; row < all.count(); ++row) {
        const QString name = all.text(row, 0);
        const ColumnKind kind = kindOfDeclaration(all.text(row, 1).toStdString());
        const int from = find(*target.from, name);
        if (from < 0 && IsOfLaterVersion(m_version, table, name)) {
            const QString drop = QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(table, name);
            m_connection->run(drop.toLatin1().constData(), m_doing);
            continue;
        }
        if (from < 0)
            throw RuntimeFailure(Failure::NoSuchColumn,
                                 QStringLiteral("The table %1 has no column %2.").arg(table, name));
        if (!CanBeRead(target.from->columns[std::size_t(from)].type, kind))
            throw RuntimeFailure(
                Failure::TypeMismatch,
                QStringLiteral("The column %1 of the table %2 does not have the type of values that this program "
                               "stores in it.")
                    .arg(name, table));
        target.columns.push_back({name, kind, from});
        names << name;
    }
    const QString marks = QStringList(names.size(), QStringLiteral("?")).join(u", ");
    target.insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, names.join(u", "), marks);
    return target;
}

void Copy::copyRows(Target &target)
{
    const Key *key = keyOf(target.name);
    std::vector<Row> again; // a second row with the same key waits until all other rows have been stored
    qint64 rows = 0;
    tellProgress(target.name);
    const qint64 lost = m_source.readRows(*target.from, [&](std::span<const OldCell> cells) {
        Row row = valuesOf(cells, target);
        if (!insert(target, row))
            again.push_back(std::move(row));
        ++m_rowsDone;
        if (++rows % rowsBetweenProgress == 0)
            tellProgress(target.name);
    });
    QHash<QString, QDateTime> last;
    for (std::size_t i = 0; i < again.size(); ++i) {
        if (key->date)
            insertMoved(target, *key, std::move(again[i]), last);
        else
            insertNumbered(target, *key, std::move(again[i]));
        if (i % rowsBetweenProgress == 0)
            tellProgress(target.name);
    }
    if (!again.empty() && key->date)
        m_outcome.changed << (again.size() == 1
                                  ? QStringLiteral("1 %1 had the date and time of another; it was moved to the next "
                                                   "free second.")
                                        .arg(WordsForRows(target.name, 1))
                                  : QStringLiteral("%1 %2 had the date and time of others; each was moved to the next "
                                                   "free second.")
                                        .arg(again.size())
                                        .arg(WordsForRows(target.name, 2)));
    m_outcome.counts.push_back({target.name, rows});
    tellUnread(target, lost, rows);
}

Copy::Row Copy::valuesOf(std::span<const OldCell> cells, Target &target) const
{
    Row row;
    row.reserve(target.columns.size());
    for (Column &column : target.columns) {
        const OldCell &cell = cells[std::size_t(column.from)];
        const OldColumn &from = target.from->columns[std::size_t(column.from)];
        std::optional<Value> value;
        if (cell.state == OldCell::State::Null)
            value = Value();
        else if (cell.state == OldCell::State::Present)
            value = ReadOldValue(cell.bytes, from.type, from.scale, column.kind, m_texts);
        column.unread += !value;
        row.push_back(value.value_or(Value()));
    }
    return row;
}

/// False if there is already a row with the same key.
bool Copy::insert(const Target &target, const Row &row)
{
    try {
        Statement statement(m_connection, target.insert, m_doing, Statement::Use::Again);
        statement.bind(row);
        statement.run();
        return true;
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::DuplicateKey)
            throw;
        return false;
    }
}

/// `last` remembers the second that the previous row of the same moment got. Without it, a thousand rows of one moment
/// would need half a million attempts.
void Copy::insertMoved(const Target &target, const Key &key, Row row, QHash<QString, QDateTime> &last)
{
    const auto at = [&](const char *name) -> Value & {
        const auto column = std::ranges::find(target.columns, QLatin1String(name), &Column::name);
        return row[std::size_t(column - target.columns.begin())];
    };
    Value &date = at(key.date), &time = at(key.time);
    QDateTime moment(date.toDate(), time.toTime(), Qt::UTC);
    QString name = moment.toString(Qt::ISODate);
    for (const char *text : key.texts)
        name += u'\n' + at(text).text();
    moment = last.value(name, moment);
    do {
        moment = moment.addSecs(1);
        date = moment.date();
        time = moment.time();
    } while (!insert(target, row));
    last[name] = moment;
}

void Copy::insertNumbered(const Target &target, const Key &key, Row row)
{
    for (const char *name : key.texts) {
        const auto column = std::ranges::find(target.columns, QLatin1String(name), &Column::name);
        Value &value = row[std::size_t(column - target.columns.begin())];
        const QString text = value.text();
        const QString select = QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?").arg(target.name, QLatin1String(name));
        for (int number = 2; ask(select, {value}).count() > 0; ++number)
            value = QStringLiteral("%1 (%2)").arg(text).arg(number);
        if (value.text() != text)
            m_outcome.changed << QStringLiteral("Two %1 had the same %2, \"%3\"; the later one has \"%4\" now.")
                                     .arg(WordsForRows(target.name, 2), QLatin1String(name), text, value.text());
    }
    insert(target, row);
}

void Copy::tellUnread(const Target &target, qint64 lostRows, qint64 rows)
{
    const qint64 missing = std::max(lostRows, target.from->rows - rows);
    if (missing > 0)
        m_outcome.unread << QStringLiteral("%1: %2 of %3 rows").arg(target.name).arg(missing).arg(rows + missing);
    else if (rows > target.from->rows)
        m_outcome.changed
            << QStringLiteral("The file says that the table %1 has %2 rows, but there are %3. All of them came over.")
                   .arg(target.name)
                   .arg(target.from->rows)
                   .arg(rows);
    for (const Column &column : target.columns)
        if (column.unread > 0)
            m_outcome.unread << QStringLiteral("%1: the column %2 in %3 of %4 rows")
                                    .arg(target.name, column.name)
                                    .arg(column.unread)
                                    .arg(rows);
}

void Copy::tellLeftOut()
{
    for (const OldTable &table : m_source.tables()) {
        const auto target =
            std::ranges::find_if(m_targets, [&](const Target &t) { return isSame(t.name, table.name); });
        if (target == m_targets.end()) {
            m_outcome.changed << QStringLiteral(
                                     "The table \"%1\" (rows: %2) is not part of Ostrelmark and was left out.")
                                     .arg(table.name)
                                     .arg(table.rows);
            continue;
        }
        for (const OldColumn &column : table.columns)
            if (std::ranges::none_of(target->columns, [&](const Column &c) { return isSame(c.name, column.name); }))
                m_outcome.changed
                    << QStringLiteral("The column \"%1\" of the table %2 is not part of Ostrelmark and was left out.")
                           .arg(column.name, target->name);
    }
}

/// Checks that every row is in the draft and that the draft is intact, and syncs it to the disk.
void Copy::check()
{
    const auto require = [this](bool good) {
        if (!good)
            throw RuntimeFailure(Failure::DeviceError, m_doing + QStringLiteral("\nWhat is on the disk is not what was "
                                                                                "written."));
    };
    for (const OldCount &count : m_outcome.counts) {
        tellProgress(count.table);
        require(ask(QStringLiteral("SELECT count(*) FROM ") + count.table).value(0, 0) == Value(count.rows));
    }
    require(ask(QStringLiteral("PRAGMA integrity_check")).text(0, 0) == u"ok");
    m_connection->close();
    const int file = ::open(QFile::encodeName(m_draft).constData(), O_RDWR | O_CLOEXEC);
    const bool isSynced = file >= 0 && ::fsync(file) == 0;
    const int error = errno;
    if (file >= 0)
        ::close(file);
    if (!isSynced)
        throwErrno(error, m_doing);
}

Rows Copy::ask(const QString &sql, const Row &values)
{
    Statement query(m_connection, sql, m_doing);
    query.bind(values);
    return Rows::read(query);
}

void Copy::tellProgress(const QString &table)
{
    const qint64 percent = m_rowsOfAll > 0 ? 100 * m_rowsDone / m_rowsOfAll : 100;
    m_progress({table, int(std::clamp<qint64>(percent, 0, 100))});
}

} // namespace

OldOutcome CopyOldDatabase(OldSource &source, const QString &draft,
                           const std::function<void(const OldProgress &)> &progress)
{
    return Copy(source, draft, progress).run();
}
