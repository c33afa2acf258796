#include "store/Database.h"

#include <QDir>
#include <QFileInfo>
#include <sqlite3.h>

#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/Copies.h"
#include "store/DatabaseFile.h"
#include "store/RecordsetState.h"

namespace {

struct DeclaredType
{
    FieldType type;
    const char *declaration; ///< %1 is the size
};

// What Append writes for each kind of field, and how a column's declaration is read back.
constexpr DeclaredType declaredTypes[] = {
    {FieldType::Boolean, "BOOLEAN"},  {FieldType::Integer, "SMALLINT"}, {FieldType::Double, "REAL"},
    {FieldType::Date, "DATE TEXT"},   {FieldType::Time, "TIME TEXT"},   {FieldType::Memo, "TEXT"},
    {FieldType::Text, "VARCHAR(%1)"},
};

constexpr int defaultTextSize = 255;

QString declarationOf(const FieldDef &field)
{
    for (const DeclaredType &row : declaredTypes) {
        if (row.type != field.Type)
            continue;
        const QString declaration = QString::fromLatin1(row.declaration);
        return row.type == FieldType::Text ? declaration.arg(field.Size > 0 ? field.Size : defaultTextSize)
                                           : declaration;
    }
    throw RuntimeFailure(Failure::DataTypeConversion,
                         QStringLiteral("The column %1 has an unknown type.").arg(field.Name));
}

FieldDef fieldOf(const QString &name, const QString &declaration)
{
    const int size = declaration.section(u'(', 1).section(u')', 0, 0).trimmed().toInt();
    switch (kindOfDeclaration(declaration.toStdString())) {
    case ColumnKind::Boolean: return {name, FieldType::Boolean, 0};
    case ColumnKind::Integer: return {name, FieldType::Integer, 0};
    case ColumnKind::Double: return {name, FieldType::Double, 0};
    case ColumnKind::Date: return {name, FieldType::Date, 0};
    case ColumnKind::Time: return {name, FieldType::Time, 0};
    default: return {name, size > 0 ? FieldType::Text : FieldType::Memo, size};
    }
}

void requireQuery(const Statement &statement, const QString &sql)
{
    if (statement.columnCount() == 0)
        throw RuntimeFailure(Failure::SyntaxError, QStringLiteral("The statement gives no rows: ") + sql);
}

} // namespace

std::unique_ptr<Database> Database::OpenDatabase(const QString &fileName, Access access)
{
    std::unique_ptr<Database> database(new Database);
    database->m_access = access;
    database->connect(fileName);
    return database;
}

void Database::connect(const QString &fileName)
{
    const QString path = FindFile(fileName);
    if (path.isEmpty()) {
        const QFileInfo wanted(fileName);
        const QString name = wanted.fileName().isEmpty() ? QStringLiteral("(no name)") : wanted.fileName();
        throw RuntimeFailure(Failure::CouldNotFindFile,
                             QStringLiteral("The database %1 was looked for in the folder %2.")
                                 .arg(name, QDir::toNativeSeparators(wanted.absolutePath())));
    }
    requireWritable(path);
    const auto connection = std::make_shared<Connection>(path);
    requireOurHeader(*connection, path);
    const QString doing = QStringLiteral("Opening the database:\n%1").arg(path);
    connection->run("PRAGMA cell_size_check = ON; PRAGMA foreign_keys = OFF; PRAGMA synchronous = EXTRA", doing);
    if (m_access == Access::Exclusive)
        connection->run("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT", doing);
    requireWholeContent(connection, path);
    connection->run("PRAGMA journal_mode = DELETE", doing);
    m_fileName = path;
    m_connection = connection;
    watchChanges();
}

Database::~Database()
{
    if (m_connection)
        m_connection->close();
}

void Database::setBusyTimeout(int milliseconds) { Connection::busyTimeout = milliseconds; }

std::shared_ptr<Connection> Database::connection()
{
    if (!m_connection && m_opensAgain)
        connect(m_fileName);
    if (!m_connection)
        throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("The database is closed."));
    return m_connection;
}

Recordset Database::OpenRecordset(const QString &sql, const Parameters &parameters)
{
    return open(sql, parameters, {});
}

Recordset Database::OpenForUpdate(const QString &table, const QString &which, const Parameters &parameters)
{
    const QString name = tableName(table);
    return open(u"SELECT *, rowid FROM " + quoted(name) + u' ' + which, parameters, name);
}

/// With a table, the rows can be written, and the last column of the statement is the number of the row.
Recordset Database::open(const QString &sql, const Parameters &parameters, const QString &table)
{
    auto state = std::make_shared<RecordsetState>();
    state->connection = connection();
    Statement query(state->connection, sql, QStringLiteral("Reading from the database."));
    requireQuery(query, sql);
    query.bind(parameters);
    state->table = table;
    state->rows = std::make_shared<const Rows>(Rows::read(query, table.isEmpty() ? nullptr : &state->rowids));
    return Recordset(std::move(state));
}

RowStream Database::OpenForwardOnly(const QString &sql, const Parameters &parameters)
{
    return RowStream(connection(), sql, parameters);
}

Recordset Database::OpenForAppend(const QString &table)
{
    auto state = std::make_shared<RecordsetState>();
    state->connection = connection();
    state->table = tableName(table);
    Statement query(state->connection, QStringLiteral("SELECT * FROM ") + quoted(state->table),
                    QStringLiteral("Reading the columns of %1.").arg(table));
    state->rows = std::make_shared<const Rows>(Rows::describe(query));
    return Recordset(std::move(state));
}

int Database::Execute(const QString &sql, const Parameters &parameters)
{
    Statement statement(connection(), sql, QStringLiteral("Changing the database."), Statement::Use::Again);
    statement.bind(parameters);
    return statement.run();
}

QStringList Database::TableDefs()
{
    Statement query(
        connection(),
        QStringLiteral(
            "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'"),
        QStringLiteral("Reading the names of the tables."));
    const Rows rows = Rows::read(query);
    QStringList names;
    for (qsizetype row = 0; row < rows.count(); ++row)
        names.append(rows.text(row, 0));
    return names;
}

QString Database::tableName(const QString &table)
{
    for (const QString &name : TableDefs())
        if (name.compare(table, Qt::CaseInsensitive) == 0)
            return name;
    throw RuntimeFailure(Failure::NoSuchColumn, QStringLiteral("There is no table \"%1\".").arg(table));
}

std::vector<FieldDef> Database::Fields(const QString &table)
{
    Statement query(connection(), QStringLiteral("SELECT name, type FROM pragma_table_info(?)"),
                    QStringLiteral("Reading the columns of %1.").arg(table));
    query.bind({tableName(table)});
    const Rows rows = Rows::read(query);
    std::vector<FieldDef> fields;
    for (qsizetype row = 0; row < rows.count(); ++row)
        fields.push_back(fieldOf(rows.text(row, 0), rows.text(row, 1)));
    return fields;
}

void Database::Append(const QString &table, const FieldDef &field)
{
    Execute(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                .arg(quoted(tableName(table)), quoted(field.Name), declarationOf(field)));
}

void Database::KeepDailyCopies(std::function<void(const QString &)> failed)
{
    m_copies = std::make_shared<DailyCopies>(m_fileName, std::move(failed));
    watchChanges();
}

void Database::watchChanges()
{
    if (!m_copies || !m_connection)
        return;
    m_connection->beforeChange = [copies = m_copies, connection = std::weak_ptr(m_connection)] {
        if (const auto open = connection.lock())
            copies->beforeChange(open);
    };
}

void Database::AboutToChange() { connection()->aboutToChange(); }

void Database::LetGo()
{
    Close();
    m_opensAgain = true;
}

void Database::OpenAgain() { connection(); }

void Database::Close()
{
    if (m_connection)
        m_connection->close();
    m_connection.reset();
    m_opensAgain = false;
}

Database::Transaction::Transaction(Database &database) : m_connection(database.connection())
{
    m_connection->aboutToChange();
    m_connection->run("BEGIN IMMEDIATE", QStringLiteral("Starting to change the database."));
}

Database::Transaction::~Transaction()
{
    if (m_connection)
        m_connection->rollBack();
}

void Database::Transaction::commit()
{
    m_connection->run("COMMIT", QStringLiteral("Storing the changes."));
    m_connection.reset();
}
