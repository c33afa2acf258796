// The dates of reminders as rows of a list, for the preview and the schedule: each date with its weekday, its task if
// the run shows one, and in a hidden last column the sorting key. A row is a date and the number of its rule. Texts are
// made only when a cell is painted, so that a schedule of two years costs little.
#pragma once

#include <vector>

#include "logic/reminders/Occurrences.h"
#include "platform/controls/ListView.h"

class OccurrenceRows : public ListSource
{
public:
    OccurrenceRows(const OccurrenceRun &run, const QString &datePicture, const QStringList &tasks) :
        m_run(run), m_datePicture(datePicture), m_tasks(tasks)
    {
    }

    void add(const QDate &date, int rule) { m_rows.push_back({qint32(date.toJulianDay()), rule}); }
    /// Sorts by date. Rows of the same day keep their order.
    void sort();

    int count() const override { return int(m_rows.size()); }
    QString text(int row, int column) const override;
    QString key(int) const override { return {}; }

private:
    struct Row
    {
        qint32 julianDay;
        qint32 rule;
    };

    OccurrenceRun m_run;
    QString m_datePicture;
    QStringList m_tasks; ///< indexed by the number of the rule
    std::vector<Row> m_rows;
};
