#include "Figure.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <QFile>
#include <sqlite3.h>

#include "OwnProcess.h"
#include "store/Database.h"
#include "SyncCounter.h"

namespace {

// One test a day, from a day after all sample data.
const QDate firstDay(2200, 1, 1);
constexpr const char *numbers[] = {"Ammonia", "nitrite", "nitrate", "ph", "orp",     "temp",   "oxygen",
                                   "dkh",     "calcium", "copper",  "sg", "custom1", "custom2"};
constexpr std::array<double, 13> values = {0.1, 0.02, 7.5, 8.2, 350, 78, 7, 9, 410, 0, 1.023, 0, 0};
constexpr const char *comment = "After the water change. All animals well.";

/// Saves as the entry window does: opens a recordset, sets its fields and calls Update once.
class SaveByRecordset
{
public:
    SaveByRecordset(const QString &file, const QString &tankId) :
        m_database(Database::OpenDatabase(file)), m_tank(tankId)
    {
    }

    Sample operator()()
    {
        Recordset tests = m_database->OpenForAppend(QStringLiteral("waterlog"));
        const long syncs = syncCalls();
        const std::int64_t start = nowNanoseconds();
        tests.AddNew();
        tests[QStringLiteral("tankname")].setValue(m_tank);
        tests[QStringLiteral("logdate")].setValue(firstDay.addDays(m_day++));
        tests[QStringLiteral("logtime")].setValue(QTime(9, 0));
        for (size_t i = 0; i < values.size(); ++i)
            tests[QLatin1String(numbers[i])].setValue(values[i]);
        tests[QStringLiteral("Comment")].setValue(QString::fromLatin1(comment));
        tests.Update();
        return {millisecondsSince(start), double(syncCalls() - syncs)};
    }

private:
    std::shared_ptr<Database> m_database;
    QString m_tank;
    int m_day = 0;
};

/// Runs an INSERT that was prepared once, in a transaction of its own and with the program's database settings.
class BareInsert
{
public:
    BareInsert(const QString &file, const QString &tankId) : m_tank(tankId.toUtf8())
    {
        check(sqlite3_open(QFile::encodeName(file).constData(), &m_database));
        check(sqlite3_exec(m_database, "PRAGMA synchronous = EXTRA; PRAGMA journal_mode = DELETE", nullptr, nullptr,
                           nullptr));
        check(sqlite3_prepare_v2(m_database,
                                 "INSERT INTO WATERLOG VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", -1,
                                 &m_insert, nullptr));
    }

    Sample operator()()
    {
        const QByteArray day = firstDay.addDays(m_day++).toString(Qt::ISODate).toLatin1();
        const long syncs = syncCalls();
        const std::int64_t start = nowNanoseconds();
        sqlite3_bind_text(m_insert, 1, m_tank.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(m_insert, 2, day.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(m_insert, 3, "09:00:00", -1, SQLITE_STATIC);
        for (size_t i = 0; i < values.size(); ++i)
            sqlite3_bind_double(m_insert, int(i) + 4, values[i]);
        sqlite3_bind_text(m_insert, 17, comment, -1, SQLITE_STATIC);
        if (sqlite3_step(m_insert) != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        sqlite3_reset(m_insert);
        return {millisecondsSince(start), double(syncCalls() - syncs)};
    }

private:
    void check(int code)
    {
        if (code != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database));
    }

    sqlite3 *m_database = nullptr; // both live until the process ends
    sqlite3_stmt *m_insert = nullptr;
    QByteArray m_tank;
    int m_day = 0;
};

} // namespace

Figure saveFigure(const QString &databaseFile, const QString &tankId)
{
    const QString one = databaseFile + u".one", other = databaseFile + u".other";
    if (!QFile::copy(databaseFile, one) || !QFile::copy(databaseFile, other))
        throw std::runtime_error("the database could not be copied");
    return {.name = QStringLiteral("Saving one test to disk, ms"),
            .target = 1.1,
            .ours = SaveByRecordset(one, tankId),
            .floor = BareInsert(other, tankId),
            .repetitions = 201,
            .extraName = QStringLiteral("  calls of fsync and fdatasync"),
            .extraTarget = 1};
}
