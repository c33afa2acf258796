// The rows that the logbook's lists show. The logbook makes one for each of its lists whenever it reads a tank's log.
#pragma once

#include <memory>
#include <vector>

#include "logic/logbook/LogKinds.h"
#include "platform/controls/ListView.h"
#include "store/Rows.h"

/// Identifies the entry that a row shows.
struct ShownEntry
{
    QString key;
    QDate date;
    QTime time;
};

/// Shows the rows of a log as they were when they were read. The text of a cell is made when it is painted or sorted.
class LogRows : public ListSource
{
public:
    LogRows(const LogKind &kind, std::shared_ptr<const Rows> rows, const QString &datePicture);

    int count() const override;
    QString text(int row, int column) const override;
    QString key(int row) const override;
    /// The date and time of the entry, because a row's text has only two digits of the year. Invalid if the entry has
    /// none.
    QDate date(int row) const { return m_rows->date(row, m_date); }
    QTime time(int row) const { return m_rows->time(row, m_time); }

private:
    struct Cell
    {
        int column;
        QString picture;
        bool isDate;
    };
    QString rowText(int row) const;

    std::shared_ptr<const Rows> m_rows;
    std::vector<Cell> m_cells;
    int m_date;
    int m_time;
    int m_name; ///< -1 if there is none
    QString m_datePicture;
    QString m_timePicture;
};
