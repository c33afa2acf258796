// Which water tests the graph shows: the measurements that are drawn, and the pages of a tank's tests, oldest first. A
// step to another page adds a condition on the last row shown. It has three effects that keepers know, so it must not
// be corrected: because it has no brackets, a page also has tests of other tanks on the day of that row; a step back
// always leads to the tank's first tests; and because the pages are counted anew in the remaining rows, the end of a
// long log is not reached. Used by frm_WaterGraph.
#pragma once

#include <memory>
#include <vector>

#include <QDate>
#include <QString>
#include <QTime>

#include "logic/common/Measurements.h"
#include "store/Database.h"

struct GraphColumn
{
    QString field; ///< of WATERLOG
    QString label;
    QString unit; ///< empty if it has none
};

/// The measurements that have a "1" at their place in `checks`, in listOrder.
std::vector<GraphColumn> GraphColumns(const QString &checks, const UserFieldNames &names);

class GraphPaging
{
public:
    /// Goes to the first page of a tank.
    void restart();
    /// Go to the tests after the last one shown, and to those before it.
    void next();
    void previous();

    /// Reads the page. Returns null and changes nothing if fewer than two tests are left, which do not make a graph.
    std::shared_ptr<const Rows> read(Database &database, const QString &tankId, int pageSize);

    bool hasNext() const { return GraphPage < GraphPageCount; }
    bool hasPrevious() const { return GraphPage >= 2; }
    int page() const { return GraphPage; }
    /// All tests of the tank, as counted on its first page.
    int total() const { return GraphTotal; }

private:
    void step(const QString &condition, int pages);

    QString GraphWhereExtra;      ///< the added condition; empty on the first page
    Parameters m_whereParameters; ///< the values for its "?", from the last row of the page before the step
    int GraphPage = 1;
    int GraphPageCount = 0; ///< pages of the rows that meet the condition
    int GraphTotal = 0;
    int GraphRowCount = 0; ///< rows on the page
    QDate GraphLastDate;   ///< date and time of the last row on the page
    QTime GraphLastTime;
};
