#include "store/DatabaseFile.h"

#include <array>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>
#include <sqlite3.h>

#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/schema.h"

namespace {

// The header of an SQLite file, big-endian.
constexpr qint64 headerSize = 100;
constexpr char magic[16] = {'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f', 'o', 'r', 'm', 'a', 't', ' ', '3', '\0'};
constexpr int encodingAt = 56, applicationIdAt = 68;
constexpr qint32 utf8Encoding = 1;

constexpr mode_t anyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

[[noreturn]] void throwForeign(const QString &path, const QString &why)
{
    throw RuntimeFailure(Failure::UnrecognizedFormat, QStringLiteral("%1\n%2").arg(path, why));
}

sqlite3_file *fileOf(Connection &connection)
{
    sqlite3_file *file = nullptr;
    sqlite3_file_control(connection.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file;
}

/// The single number that a statement without parameters returns; 0 if it returns no row.
qint64 oneNumber(const std::shared_ptr<Connection> &connection, const QString &sql, const QString &doing)
{
    Statement query(connection, sql, doing);
    return query.step() ? sqlite3_column_int64(query.handle(), 0) : 0;
}

} // namespace

bool isWritable(const QString &path, int access)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    return ::stat(name.constData(), &status) == 0 && (status.st_mode & anyWriteBit) != 0 &&
           ::access(name.constData(), access) == 0;
}

qint64 fileSize(Connection &connection)
{
    sqlite3_file *file = fileOf(connection);
    sqlite3_int64 size = 0;
    if (file && file->pMethods)
        file->pMethods->xFileSize(file, &size);
    return size;
}

void readFile(Connection &connection, char *to, int size, qint64 at, const QString &doing)
{
    sqlite3_file *file = fileOf(connection);
    const int code = file && file->pMethods ? file->pMethods->xRead(file, to, size, at) : SQLITE_CANTOPEN;
    if (code != SQLITE_OK)
        connection.fail(code, doing);
}

void requireWritable(const QString &path)
{
    const QFileInfo file(
        QFileInfo(path).canonicalFilePath()); // the journal is created beside the file that a link points to
    if (!isWritable(file.filePath(), R_OK | W_OK))
        throw RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral("The database is read-only:\n%1\nMake it writable and try again.").arg(path));
    if (!isWritable(file.path(), W_OK | X_OK))
        throw RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral(
                "The folder of the database is read-only, so nothing could be stored:\n%1\nMake it writable and "
                "try again.")
                .arg(file.path()));
}

void requireOurHeader(Connection &connection, const QString &path)
{
    if (sqlite3_db_readonly(connection.handle(), "main") != 0)
        throw RuntimeFailure(Failure::PermissionDenied, QStringLiteral("The database is read-only:\n%1").arg(path));
    std::array<char, headerSize> header{};
    if (fileSize(connection) < headerSize)
        throwForeign(path, QStringLiteral("The file is empty or too short for a database."));
    readFile(connection, header.data(), int(header.size()), 0, QStringLiteral("Reading the database:\n%1").arg(path));
    if (!std::equal(std::begin(magic), std::end(magic), header.begin()))
        throwForeign(path, QStringLiteral("The file is no database, or its beginning is damaged."));
    if (qFromBigEndian<qint32>(header.data() + applicationIdAt) != schema::applicationId)
        throwForeign(path, QStringLiteral("The file is a database of another program."));
    if (qFromBigEndian<qint32>(header.data() + encodingAt) != utf8Encoding)
        throwForeign(path, QStringLiteral("The beginning of the file is damaged."));
}

void requireWholeContent(const std::shared_ptr<Connection> &connection, const QString &path)
{
    const QString doing = QStringLiteral("Reading the database:\n%1").arg(path);
    QSet<QString> names;
    {
        Statement query(connection, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'"), doing);
        while (query.step())
            names.insert(
                QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(query.handle(), 0))).toUpper());
    }
    for (const schema::Table &table : schema::tables())
        if (!names.contains(QLatin1String(table.name)))
            throwForeign(path, QStringLiteral("The table %1 is missing.").arg(QLatin1String(table.name)));
    const qint64 pages = oneNumber(connection, QStringLiteral("PRAGMA page_count"), doing);
    const qint64 pageSize = oneNumber(connection, QStringLiteral("PRAGMA page_size"), doing);
    if (fileSize(*connection) < pages * pageSize)
        throwForeign(path, QStringLiteral("The end of the file is missing."));
    if (oneNumber(connection, QStringLiteral("SELECT EXISTS (SELECT * FROM CONFIG)"), doing) == 0)
        throwForeign(path, QStringLiteral("The table CONFIG has no row."));
}
