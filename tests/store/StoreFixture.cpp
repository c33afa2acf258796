#include "StoreFixture.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

#include "store/NewDatabase.h"

StoreTest::StoreTest()
{
    CreateDatabase(path());
    open();
}

Recordset StoreTest::adding(const QString &table, const std::map<QString, Value> &columns)
{
    Recordset rows = db->OpenForAppend(table);
    rows.AddNew();
    for (const auto &[name, value] : columns)
        rows[name].setValue(value);
    return rows;
}

void StoreTest::addWater(int day, double ph)
{
    add("WATERLOG",
        {{"tankname", QString("T")}, {"logdate", QDate(2003, 1, day)}, {"logtime", QTime(9, 0)}, {"ph", ph}});
}

OtherProgram::OtherProgram(const QString &path) { sqlite3_open(QFile::encodeName(path).constData(), &m_handle); }

OtherProgram::~OtherProgram() { sqlite3_close(m_handle); }

QString OtherProgram::run(const char *sql)
{
    QString result;
    const auto take = [](void *out, int, char **values, char **) {
        *static_cast<QString *>(out) = QString::fromUtf8(values[0]);
        return 0;
    };
    return sqlite3_exec(m_handle, sql, take, &result, nullptr) == SQLITE_OK ? result : QStringLiteral("error");
}

std::optional<RuntimeFailure> failureOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const RuntimeFailure &failure) {
        return failure;
    }
    return std::nullopt;
}

int numberOf(const std::function<void()> &work)
{
    const auto failure = failureOf(work);
    return failure ? int(failure->number()) : 0;
}

std::map<QString, QByteArray> contentOf(const QString &folder)
{
    std::map<QString, QByteArray> content;
    const QDir dir(folder);
    for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden)) {
        QFile file(dir.filePath(name));
        content[name] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    return content;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}
