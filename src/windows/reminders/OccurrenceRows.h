// Dates as the rows of a list: shown with their weekday, their task where the run shows one, and at last the sorting
// key, which no list shows. A row is a date and the number of its rule; texts are made when a cell is painted, so that
// the schedule of two years costs little. The preview and the schedule are such lists.
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
    /// By date; those of one day stay in the order in which they came.
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
    QStringList m_tasks; ///< by the number of the rule
    std::vector<Row> m_rows;
};
