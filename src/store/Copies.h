// The daily copies: before the first change of a day, the database file is copied into the folder "copies" beside it,
// as OM-2026-11-24.MDB, and the oldest copies are removed. The setting Keep_Copies says how many days are kept; 0 means
// none. A copy is either complete or not there. A database without tanks, entries and reminders is not copied. Database
// owns this object after a call of KeepDailyCopies.
#pragma once

#include <functional>
#include <memory>

#include <QDate>
#include <QString>

class Connection;

class DailyCopies
{
public:
    static constexpr int daysAtFirst = 10;
    static constexpr const char *folderName = "copies";

    /// `failed` gets a sentence for the keeper if a copy could not be made; the change is then made without a copy.
    DailyCopies(const QString &database, std::function<void(const QString &)> failed);

    /// Called before each change. Makes the copy of the day if there is none; it tries this only once a day.
    void beforeChange(const std::shared_ptr<Connection> &connection);

private:
    void makeCopy(const std::shared_ptr<Connection> &connection, const QDate &day, int daysToKeep);

    QString m_database;
    std::function<void(const QString &)> m_failed;
    QDate m_lastDay; ///< the day of the last copy or attempt
};
