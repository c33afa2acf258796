#include "windows/reminders/OccurrenceRows.h"

#include <algorithm>

void OccurrenceRows::sort()
{
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const Row &a, const Row &b) { return a.julianDay < b.julianDay; });
}

QString OccurrenceRows::text(int row, int column) const
{
    const Row &cell = m_rows[std::size_t(row)];
    const QDate date = QDate::fromJulianDay(cell.julianDay);
    if (column == 0)
        return OccurrenceText(m_run, date, m_datePicture);
    return column == 1 && m_run.showsTask ? m_tasks.value(cell.rule) : OccurrenceKey(date);
}
