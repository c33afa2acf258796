#include "windows/logbook/LogRows.h"

#include "logic/logbook/RowKey.h"
#include "text/Dates.h"
#include "text/Numbers.h"

LogRows::LogRows(const LogKind &kind, std::shared_ptr<const Rows> rows, const QString &datePicture) :
    m_rows(std::move(rows)), m_date(m_rows->column(QLatin1String(kind.dateColumn))),
    m_time(m_rows->column(QLatin1String(kind.timeColumn))),
    m_name(kind.nameColumn ? m_rows->column(QLatin1String(kind.nameColumn)) : -1), m_datePicture(datePicture),
    m_timePicture(QLatin1String(kind.list.timePicture))
{
    for (const LogColumn &column : kind.list.columns) {
        const QString picture = QLatin1String(column.picture);
        m_cells.push_back(
            {column.column ? m_rows->column(QLatin1String(column.column)) : -1, picture, picture.contains(u'y')});
    }
}

int LogRows::count() const { return static_cast<int>(m_rows->count()); }

QString LogRows::rowText(int row) const { return MakeRowText(date(row), time(row), m_datePicture, m_timePicture); }

QString LogRows::text(int row, int column) const
{
    const Cell &cell = m_cells[static_cast<size_t>(column)];
    if (cell.column < 0)
        return rowText(row);
    if (cell.picture.isEmpty())
        return m_rows->text(row, cell.column);
    if (m_rows->isNull(row, cell.column))
        return {};
    if (cell.isDate)
        return Format(m_rows->date(row, cell.column), cell.picture);
    return Format(m_rows->number(row, cell.column), cell.picture);
}

QString LogRows::key(int row) const
{
    const QString text = rowText(row);
    return m_name < 0 ? text : MakeRowKey(text, m_rows->text(row, m_name));
}
