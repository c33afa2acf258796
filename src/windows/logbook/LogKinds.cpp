#include "windows/logbook/LogKinds.h"

#include "logic/common/Measurements.h"
#include "logic/logbook/RowKey.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

std::vector<LogColumn> waterColumns()
{
    std::vector<LogColumn> columns{{"Date", "Date", false, nullptr, nullptr, 170}};
    for (const Measurement measurement : listOrder) {
        const MeasurementInList &list = RowOf(measurement).list;
        columns.push_back({list.key, list.heading, true, RowOf(list.shown).column, list.picture, list.width});
    }
    columns.push_back({"Comments", "Comments", false, "Comment", nullptr, 260});
    return columns;
}

} // namespace

// The heading "price_sold" in lower case is settled, and so are the fixed headings of the measurements that the user
// names.
const std::array<LogKind, 3> logKinds = {{
    {"Water Quality Log", "lstv_WaterLog", "Contents of Water Quality Log for '%1'", "waterquality",
     "SELECT * FROM waterlog where tankname = ? ORDER BY ", "LogDate, Logtime ", "LogDate desc, Logtime desc ",
     "logdate", "logtime", "hh:mm:ss am/pm", nullptr, waterColumns()},
    {"Livestock Log",
     "lstv_Livestock",
     "Contents of Livestock Log for '%1'",
     "livestock",
     "SELECT * FROM livestock where tankname = ? ORDER BY ",
     "DateAdded, TimeAdded ",
     "DateAdded Desc, TimeAdded Desc",
     "dateadded",
     "timeadded",
     "hh:mm:ss AM/PM",
     "animalname",
     {
         {"Date", "Date", false, nullptr, nullptr, 170},
         {"animalname", "Animal", false, "animalname", nullptr, 160},
         {"quantity", "Quantity", false, "quantity", "###0", 75},
         {"status", "Status", false, "Status", nullptr, 110},
         {"price_paid", "Price Paid", true, "price_paid", "###0.00", 85},
         {"price_sold", "price_sold", false, "price_sold", "###0.00", 85},
         {"datelost", "Date Lost", false, "datelost", "mm/dd/yy", 85},
         {"where_purch", "Where Purchased", false, "where_purch", nullptr, 150},
         {"comment", "Comments", false, "Comment", nullptr, 260},
     }},
    {"Maintenance Log",
     "lstv_Maintenance",
     "Contents of Maintenance Log for '%1'",
     "maintenance",
     "SELECT * FROM maintlog where mainttankname = ? ORDER BY ",
     "maintlogdate , maintlogtime ",
     "maintlogdate desc, maintlogtime desc",
     "maintlogdate",
     "maintlogtime",
     "hh:mm:ss am/pm",
     "maintlogtask",
     {
         {"Date", "Date", false, nullptr, nullptr, 170},
         {"tank", "Task", false, "maintlogtask", nullptr, 180},
         {"Quantity", "Quantity", false, "maintlogqty", "###0", 75},
         {"unit", "Unit of Measure", false, "maintlogunit", nullptr, 115},
         {"description", "Description", false, "maintlogdesc", nullptr, 200},
         {"comments", "Comments", false, "maintlognote", nullptr, 260},
     }},
}};

LogRows::LogRows(const LogKind &kind, std::shared_ptr<const Rows> rows, const QString &datePicture) :
    m_rows(std::move(rows)), m_date(m_rows->column(QLatin1String(kind.dateColumn))),
    m_time(m_rows->column(QLatin1String(kind.timeColumn))),
    m_name(kind.nameColumn ? m_rows->column(QLatin1String(kind.nameColumn)) : -1), m_datePicture(datePicture),
    m_timePicture(QLatin1String(kind.timePicture))
{
    for (const LogColumn &column : kind.columns) {
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
