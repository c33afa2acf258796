#include "graph/GraphPaging.h"

namespace {

const QString countTests = QStringLiteral("SELECT count(*) AS n FROM waterlog where tankname = ?");
const QString selectTests = QStringLiteral("SELECT * FROM waterlog where tankname = ?");
const QString inOrder = QStringLiteral(" ORDER BY logdate ASC, logtime ASC LIMIT ?");
const QString later = QStringLiteral(" AND logdate > ? or logdate = ? And logtime > ?");
const QString earlier = QStringLiteral(" AND logdate < ? or logdate = ? And logtime < ?");

constexpr int fewest = 2;

struct Position
{
    const char *field;
    const char *label; ///< null: the user's name for it
};

constexpr Position positions[] = {
    {"ph", "ph"},     {"Ammonia", "Nh3"},   {"nitrite", "No2"},   {"nitrate", "No3"},     {"sg", "S.G."},
    {"temp", "temp"}, {"oxygen", "o2"},     {"dkh", "dkh"},       {"calcium", "calcium"}, {"copper", "cu"},
    {"orp", "Redox"}, {"custom1", nullptr}, {"custom2", nullptr},
};

} // namespace

std::vector<GraphColumn> GraphColumns(const QString &checks, const QString &userName1, const QString &userName2)
{
    std::vector<GraphColumn> columns;
    qsizetype place = 0;
    for (const Position &position : positions) {
        if (checks.mid(place++, 1) != u"1")
            continue;
        const bool second = QLatin1String(position.field) == QLatin1String("custom2");
        const QString label = position.label ? QString::fromLatin1(position.label) : second ? userName2 : userName1;
        columns.push_back({QString::fromLatin1(position.field), label});
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
    parameters.emplace_back(pageSize); // the rest of a long log is counted, and not read
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
