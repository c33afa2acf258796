#include "store/NewDatabase.h"
#include "platform/Files.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "platform/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/DatabaseFile.h"
#include "store/schema.h"
#include "store/Version.h"
#include "store/WordList.h"

namespace {

[[noreturn]] void throwErrno(int error, const QString &path)
{
    const Failure failure = error == ENOENT || error == ENOTDIR  ? Failure::PathNotFound
                            : error == ENOSPC || error == EDQUOT ? Failure::DiskFull
                            : error == EIO                       ? Failure::DeviceError
                                                                 : Failure::PermissionDenied;
    throw RuntimeFailure(failure, QStringLiteral("Making the database %1.\n(%2)").arg(path, qt_error_string(error)));
}

[[noreturn]] void throwExists(const QString &path)
{
    throw RuntimeFailure(Failure::PermissionDenied,
                         QStringLiteral("The file %1 is there already, and is left as it is.").arg(path));
}

/// A file beside the one to be made that holds it while it grows; gone with this object, unless it was given its name.
class Draft
{
public:
    explicit Draft(const QString &fileName) :
        m_path(QStringLiteral("%1.new-%2").arg(fileName).arg(::getpid())), m_name(fileName)
    {
        const int file = ::open(encoded(m_path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file < 0)
            throwErrno(errno, fileName);
        ::close(file);
    }
    ~Draft()
    {
        ::unlink(encoded(m_path).constData());
        ::unlink(encoded(m_path + QStringLiteral("-journal")).constData());
    }
    Draft(const Draft &) = delete;
    Draft &operator=(const Draft &) = delete;

    QString path() const { return m_path; }

    /// Never takes the place of a file that has come meanwhile.
    void giveName()
    {
        const QByteArray from = encoded(m_path), to = encoded(m_name);
        if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
            return;
        // Not every file system knows that way; this one the old ones know.
        if (errno != EEXIST && ::link(from.constData(), to.constData()) == 0)
            return;
        if (errno == EEXIST)
            throwExists(m_name);
        throwErrno(errno, m_name);
    }

private:
    static QByteArray encoded(const QString &path) { return QFile::encodeName(path); }
    QString m_path, m_name;
};

void writeTables(Connection &connection, const QString &doing)
{
    for (const schema::Table &table : schema::tables()) {
        connection.run(table.create, doing);
        connection.run(table.indexes, doing);
    }
    const QString marks = QStringLiteral("PRAGMA application_id = %1; PRAGMA user_version = %2")
                              .arg(schema::applicationId)
                              .arg(schema::userVersion);
    connection.run(marks.toLatin1().constData(), doing);
}

void writeRows(const std::shared_ptr<Connection> &connection, const QString &doing)
{
    Statement config(
        connection,
        QStringLiteral("INSERT INTO CONFIG (default_salt, default_fresh, user_fieldname1, user_fieldname2, db_version) "
                       "VALUES (1, 0, 'User Field 1', 'User field 2', ?)"),
        doing);
    config.bind({presentDatabaseVersion});
    config.run();
    const auto addWord = [&](const char *name, const char *type) {
        Statement add(connection, QStringLiteral("INSERT INTO ANIMALLIST (animalname, AnimalType) VALUES (?, ?)"),
                      doing, Statement::Use::Again);
        add.bind({QString::fromUtf8(name), QString::fromLatin1(type)});
        add.run();
    };
    for (const Word &word : upgradeWords())
        addWord(word.name, word.type);
    for (const char *animal : marineAnimals())
        addWord(animal, "2");
}

} // namespace

void CreateDatabase(const QString &fileName)
{
    if (const QString there = FindFile(fileName); !there.isEmpty())
        throwExists(there);
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const QString doing = QStringLiteral("Making the database %1.").arg(path);
    Draft draft(path);
    const auto connection = std::make_shared<Connection>(draft.path());
    connection->run("PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA; BEGIN", doing);
    writeTables(*connection, doing);
    writeRows(connection, doing);
    connection->run("COMMIT", doing);
    connection->close();
    draft.giveName();
}
