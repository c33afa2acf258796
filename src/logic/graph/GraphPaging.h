// Which water tests the graph shows: the measurements that are drawn, and the pages of a tank's tests, oldest first.
// The pages are moved by a condition on the last row shown, whose effects keepers know and which stay so: it has no
// brackets, so that rows of any tank of the very day of the last row and a later time come along; a step back lands on
// the tank's first tests, whatever page it was on; and the pages are counted on the rows that are left, so that the end
// of a long log is not reached. No window; driven by frm_WaterGraph.
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
};

/// The measurements that have a "1" at their place in `checks`, in listOrder.
std::vector<GraphColumn> GraphColumns(const QString &checks, const UserFieldNames &names);

class GraphPaging
{
public:
    /// Back to the first page of a tank.
    void restart();
    /// Tests after the last one that was shown, and tests before it.
    void next();
    void previous();

    /// Reads the page; null, and nothing is changed, where fewer than two tests are left, which make no graph.
    std::shared_ptr<const Rows> read(Database &database, const QString &tankId, int pageSize);

    bool hasNext() const { return GraphPage < GraphPageCount; }
    bool hasPrevious() const { return GraphPage >= 2; }
    int page() const { return GraphPage; }
    /// All tests of the tank, as counted on its first page.
    int total() const { return GraphTotal; }

private:
    void step(const QString &condition, int pages);

    QString GraphWhereExtra;      ///< joined to the condition; empty on the first page
    Parameters m_whereParameters; ///< of its "?": the row that was last when the step was taken
    int GraphPage = 1;
    int GraphPageCount = 0; ///< of the rows that the condition let through
    int GraphTotal = 0;
    int GraphRowCount = 0; ///< on the page
    QDate GraphLastDate;   ///< of the last row on the page
    QTime GraphLastTime;
};
