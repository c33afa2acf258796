// The three logs as data: captions, statements, columns and pictures of their lists. What the logs do alike is written
// once (frm_Waterlog), and what differs between them stands here, where a reader sees it side by side.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "logic/logbook/LogTab.h"
#include "platform/controls/ListView.h"
#include "store/Rows.h"

/// The entry of a row.
struct ShownEntry
{
    QString key;
    QDate date;
    QTime time;
};

struct LogColumn
{
    const char *key;
    const char *heading;
    bool right;
    const char *column;  ///< of the table; null for date and time
    const char *picture; ///< number or date picture; null: as text
    int width;
};

struct LogKind
{
    const char *tabCaption;
    const char *listName;    ///< name of the list view
    const char *listCaption; ///< "Contents of ... for '<tank>'"
    const char *image;
    const char *select;    ///< one parameter: the tank's id
    const char *ascending; ///< what follows ORDER BY
    const char *descending;
    const char *dateColumn;
    const char *timeColumn;
    const char *timePicture;
    const char *nameColumn; ///< the name in the row's key; null where date and time are the identity
    std::vector<LogColumn> columns;
};

extern const std::array<LogKind, 3> logKinds;

/// Shows the rows of a log as they were read; cells are made text when they are painted or sorted.
class LogRows : public ListSource
{
public:
    LogRows(const LogKind &kind, std::shared_ptr<const Rows> rows, const QString &datePicture);

    int count() const override;
    QString text(int row, int column) const override;
    QString key(int row) const override;
    /// The entry's own date and time; a row's text has only two digits of the year. Invalid where the entry has none.
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
    int m_name; ///< -1 where there is none
    QString m_datePicture;
    QString m_timePicture;
};
