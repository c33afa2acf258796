// Copies of the database that make themselves: before the first change of a
// day, the file as it was goes into the folder "copies" beside it, as
// OM-2026-11-24.MDB, and the copies of the last days are kept. The day comes
// from the door of the clock, the number of days from the setting Keep_Copies;
// 0 means none. A copy is complete or is not there. A database without tanks,
// entries and reminders is not copied. Database owns one of these once
// KeepDailyCopies was called.
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

    /// `failed` gets a sentence for the keeper when a copy could not be made;
    /// work goes on without it.
    DailyCopies(const QString &database, std::function<void(const QString &)> failed);

    /// Called before each change. Makes the copy of the day if there is none, and
    /// tries it once a day.
    void beforeChange(const std::shared_ptr<Connection> &connection);

private:
    void makeCopy(const std::shared_ptr<Connection> &connection, const QDate &day, int daysToKeep);

    QString m_database;
    std::function<void(const QString &)> m_failed;
    QDate m_lastDay; ///< that was seen to
};
