#include "logic/graph/GraphPaging.h"

namespace {

const QString countTests = QStringLiteral("SELECT count(*) AS n FROM waterlog where tankname = ?");
const QString selectTests = QStringLiteral("SELECT * FROM waterlog where tankname = ?");
const QString inOrder = QStringLiteral(" ORDER BY logdate ASC, logtime ASC LIMIT ?");
const QString later = QStringLiteral(" AND logdate > ? or logdate = ? And logtime > ?");
const QString earlier = QStringLiteral(" AND logdate < ? or logdate = ? And logtime < ?");

constexpr int fewest = 2;

} // namespace

std::vector<GraphColumn> GraphColumns(const QString &checks, const UserFieldNames &names)
{
    std::vector<GraphColumn> columns;
    for (std::size_t place = 0; place < listOrder.size(); ++place) {
        const MeasurementRow &row = RowOf(listOrder[place]);
        if (checks.mid(qsizetype(place), 1) == u"1")
            columns.push_back({QString::fromLatin1(row.column), NameOf(row, row.graph.label, names),
                               QString::fromLatin1(row.graph.unit)});
    }
    return columns;
}

void GraphPaging::restart()
{
    GraphWhereExtra.clear();
    m_whereParameters.clear();
    GraphPage = 1;
}

void GraphPaging::next() { step(later, 1); }

void GraphPaging::previous() { step(earlier, -1); }

void GraphPaging::step(const QString &condition, int pages)
{
    GraphWhereExtra = condition;
    m_whereParameters = {GraphLastDate, GraphLastDate, GraphLastTime};
    GraphPage += pages;
}

std::shared_ptr<const Rows> GraphPaging::read(Database &database, const QString &tankId, int pageSize)
{
    Parameters parameters{tankId};
    parameters.insert(parameters.end(), m_whereParameters.begin(), m_whereParameters.end());
    const Recordset counted = database.OpenRecordset(countTests + GraphWhereExtra, parameters);
    const int count = int(counted.rows()->number(0, 0));
    if (count < fewest)
        return nullptr;
    parameters.emplace_back(pageSize); // the rest of a long log is counted but not read
    const Recordset tests = database.OpenRecordset(selectTests + GraphWhereExtra + inOrder, parameters);
    const std::shared_ptr<const Rows> rows = tests.rows();

    GraphPageCount = count / pageSize + (count % pageSize > 0);
    if (GraphPage == 1)
        GraphTotal = count;
    GraphRowCount = int(rows->count());
    GraphLastDate = rows->date(GraphRowCount - 1, rows->column(QStringLiteral("logdate")));
    GraphLastTime = rows->time(GraphRowCount - 1, rows->column(QStringLiteral("logtime")));
    return rows;
}
