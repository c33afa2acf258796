#include "logbook/LogKinds.h"

#include "logbook/RowKey.h"
#include "text/Dates.h"
#include "text/Numbers.h"

// Headings stand as they are: "price_sold" in lower case, and the user's two columns under their own names whatever he
// calls them. Both of those show custom1; custom2 is saved and graphed, but this list does not show it.
const std::array<LogKind, 3> logKinds = {{
    {"Water Quality Log",
     "lstv_WaterLog",
     "Contents of Water Quality Log for '%1'",
     "waterquality",
     "SELECT * FROM waterlog where tankname = ? ORDER BY ",
     "LogDate, Logtime ",
     "LogDate desc, Logtime desc ",
     "logdate",
     "logtime",
     "hh:mm:ss am/pm",
     nullptr,
     {
         {"Date", "Date", false, nullptr, nullptr, 170},
         {"Ph", "ph", true, "ph", "0.00", 60},
         {"Ammonia", "Nh3 - Ammonia", true, "Ammonia", "###0.000", 110},
         {"Nitrite", "No2 - Nitrite", true, "nitrite", "###0.000", 95},
         {"Nitrate", "No3 - Nitrate", true, "nitrate", "###0.000", 100},
         {"sg", "S.G. - Specific Gravity", true, "sg", "###0.000", 150},
         {"Temperature", "Temperature", true, "temp", "##0.00", 90},
         {"o2", "o2 - Oxygen", true, "oxygen", "##0.000", 90},
         {"dkh", "dKh", true, "dkh", "##0.000", 70},
         {"Calcium", "Calcium", true, "calcium", "###0.000", 75},
         {"Copper", "Cu - Copper", true, "copper", "##0.000", 90},
         {"Orp", "Orp ", true, "orp", "##0.000", 75},
         {"Custom1", "Custom1", true, "custom1", nullptr, 75},
         {"Custom2", "Custom2", true, "custom1", nullptr, 75},
         {"Comments", "Comments", false, "Comment", nullptr, 260},
     }},
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
