#include "logic/logbook/LogReports.h"

#include <array>

#include "logic/common/Measurements.h"
#include "platform/core/Doors.h"
#include "platform/core/Printer.h"
#include "store/Database.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

struct ReportColumn
{
    const char *head;
    double left;        ///< fraction of the page's width
    const char *column; ///< of the query; null for date and time
    const char *picture;
};

struct LogReport
{
    const char *dialogTitle;
    const char *title;
    const char *empty;
    bool landscape;
    QString select; ///< up to the tank filter
    const char *orderBy;
    const char *dateColumn;
    const char *timeColumn;
    std::vector<ReportColumn> columns;
};

constexpr auto tankFilter = " and t.tankid = ? ";

constexpr auto waterPicture = "###0.000";

QString waterSelect()
{
    QString columns;
    for (const MeasurementRow &row : measurements)
        columns += u"w." + QLatin1String(row.column) + u", ";
    return u"SELECT t.Tankname as tankname, t.Tankdesc, t.Tanksize, w.logdate, w.logtime, " + columns +
           u"w.Comment FROM Tanklst t, waterlog w where w.tankname = t.tankid ";
}

/// The heads of the measurements that the user names are fixed: his own names do not appear on paper.
std::vector<ReportColumn> waterColumns()
{
    constexpr int dateSpan = 1;
    int whole = dateSpan;
    for (const MeasurementRow &row : measurements)
        whole += row.report.span;
    std::vector<ReportColumn> columns{{"Date /Time Added", 0, nullptr, nullptr}};
    int left = dateSpan;
    for (const MeasurementRow &row : measurements) {
        columns.push_back({row.report.head, double(left) / whole, row.column, waterPicture});
        left += row.report.span;
    }
    return columns;
}

// In the order of LogTab.
const std::array<LogReport, 3> reports = {{
    {"Print Water Quality Log", "Ostrelmark Water Quality Log",
     "No water quality entries were found for this tank. No log was printed.", true, waterSelect(),
     " ORDER BY t.Tankname COLLATE CASEBLIND, w.logdate, w.logtime", "logdate", "logtime", waterColumns()},
    {"Print Livestock Log",
     "Ostrelmark Livestock Log",
     "No Livestock entries were found for this tank. No log was printed.",
     false,
     QStringLiteral("SELECT t.Tankname, t.Tankdesc, t.Tanksize, l.Dateadded, l.Timeadded, l.animalname, l.status, "
                    "l.quantity FROM Tanklst t, livestock L where l.tankname = t.tankid "),
     " ORDER BY t.Tankname COLLATE CASEBLIND, l.DateAdded, l.Timeadded",
     "Dateadded",
     "Timeadded",
     {{"Date /Time Added", 0, nullptr, nullptr},
      {"Animal", 1 / 4., "animalname", nullptr},
      {"Quantity", 1 - 1 / 4., "quantity", nullptr},
      {"Status", 1 - 1 / 8., "status", nullptr}}},
    {"Print Maintenance Log",
     "Ostrelmark Maintenance Log",
     "No Maintenance entries were found for this tank. No log was printed.",
     false,
     QStringLiteral("SELECT t.Tankname, t.Tankdesc, t.Tanksize, m.maintlogdate, m.maintlogtime, m.maintlogtask, "
                    "m.maintlogqty, m.maintlogunit, m.maintlogdesc, m.maintlognote FROM Tanklst t, maintlog m "
                    "where m.mainttankname = t.tankid "),
     " ORDER BY t.Tankname COLLATE CASEBLIND, m.maintlogdate, m.maintlogtime",
     "maintlogdate",
     "maintlogtime",
     {{"Date /Time Performed", 0, nullptr, nullptr}, {"Task Performed", 1 / 4., "maintlogtask", nullptr}}},
}};

constexpr double gap = 1 / 160.; ///< of the page's width, kept free between two columns

bool isNumber(const Value &value)
{
    return std::holds_alternative<qint64>(value.variant()) || std::holds_alternative<double>(value.variant());
}

void setFont(Printer &page, const char *name, double size, bool bold = false, bool italic = false)
{
    page.Font = {QLatin1String(name), size, bold, italic, false};
}

/// One run of a report over its rows.
class LogRun
{
public:
    LogRun(LogTab log, Database &database, const QString &datePicture, const std::optional<QString> &tankId) :
        m_log(log), m_report(reports[log]), m_database(database), m_datePicture(datePicture), m_tankId(tankId)
    {
    }

    bool open()
    {
        const QString sql =
            m_report.select + QLatin1String(m_tankId ? tankFilter : "") + QLatin1String(m_report.orderBy);
        m_rows.reset();
        m_rows.reset(new RowStream(m_database.OpenForwardOnly(sql, m_tankId ? Parameters{*m_tankId} : Parameters{})));
        return !m_rows->EOF_();
    }

    void print(Printer &page)
    {
        if (!m_rows)
            open(); // a preview prints again and again
        const bool orientation = page.Landscape();
        if (m_report.landscape)
            page.setLandscape(true);
        bool firstTank = true;
        QString tank;
        int pageNumber = 1;
        while (!m_rows->EOF_()) {
            if (const QString name = text("Tankname"); firstTank || name != tank) {
                if (!firstTank)
                    page.NewPage();
                firstTank = false;
                tank = name;
                pageNumber = 1;
                printTop(page, QLatin1String(m_report.title), pageNumber);
            }
            printEntry(page);
            m_rows->MoveNext();
            // The position across is held against a height, so this never comes: a long tank runs on by the page's own
            // feed.
            if (page.CurrentX > page.ScaleHeight() - page.ScaleHeight() / 11 && !m_rows->EOF_()) {
                page.NewPage();
                printTop(page, QStringLiteral("Ostrelmark Livestock Log"), ++pageNumber);
            }
        }
        page.EndDoc();
        m_rows.reset(); // lets the database go
        if (m_report.landscape)
            page.setLandscape(orientation);
    }

private:
    QString text(const char *column) { return m_rows->text(QLatin1String(column)); }

    void printTop(Printer &page, const QString &title, int pageNumber)
    {
        PrintPageHeadings(page, title, text("Tankname"), text("Tanksize"), text("Tankdesc"), pageNumber, m_datePicture);
        std::vector<PrintCell> heads;
        for (size_t i = 0; i < m_report.columns.size(); ++i)
            heads.push_back(cell(page, i, QLatin1String(m_report.columns[i].head)));
        page.Font.underline = true;
        page.PrintRow(heads);
        page.Font.underline = false;
        page.Print({});
    }

    /// A cell of that column, which ends a little before the next begins.
    PrintCell cell(const Printer &page, size_t column, const QString &content) const
    {
        const bool last = column + 1 == m_report.columns.size();
        const double right = last ? 1 : m_report.columns[column + 1].left - gap;
        return {m_report.columns[column].left * page.ScaleWidth(), right * page.ScaleWidth(), content, false};
    }

    QString cellText(const ReportColumn &column)
    {
        const Value value = m_rows->value(QLatin1String(column.column));
        return column.picture && isNumber(value) ? Format(value.toDouble(), QLatin1String(column.picture))
                                                 : value.text();
    }

    /// The date and time of an entry. One that is missing leaves its place empty, one that is none stands as it is.
    QString momentText()
    {
        const Value date = m_rows->value(QLatin1String(m_report.dateColumn));
        const Value time = m_rows->value(QLatin1String(m_report.timeColumn));
        const auto *day = std::get_if<QDate>(&date.variant());
        return (day ? Format(*day, m_datePicture) : date.text()) + (m_log == WaterTab ? u" -\n" : u" - ") + time.text();
    }

    void printEntry(Printer &page)
    {
        std::vector<PrintCell> cells;
        for (size_t i = 0; i < m_report.columns.size(); ++i) {
            if (m_report.columns[i].column) {
                cells.push_back(cell(page, i, cellText(m_report.columns[i])));
                continue;
            }
            // Date and time stand whole in their column: in the narrow one of the water log on two lines, smaller if
            // need be.
            cells.push_back(cell(page, i, momentText()));
            cells.back().shrink = true;
        }
        page.PrintRow(cells);
        if (m_log == MaintenanceTab) {
            page.PrintRow(
                {cell(page, 1, text("maintlogqty") + u"  " + text("maintlogunit") + u"  " + text("maintlogdesc"))});
            page.PrintRow({cell(page, 1, text("maintlognote"))});
        }
    }

    LogTab m_log;
    const LogReport &m_report;
    Database &m_database;
    QString m_datePicture;
    std::optional<QString> m_tankId;
    std::unique_ptr<RowStream> m_rows; ///< opened, and not yet printed
};

} // namespace

void PrintPageHeadings(Printer &page, const QString &title, const QString &tankName, const QString &tankSize,
                       const QString &tankDescription, int pageNumber, const QString &datePicture)
{
    setFont(page, "Arial", 14, true, true);
    page.Print(title);
    page.Print({});
    setFont(page, "Times New Roman", 10);
    page.PrintOn(QStringLiteral("Tankname: "));
    page.Font.bold = true;
    page.Print(tankName);
    page.Font.bold = false;
    page.Print(u"Tanksize: " + tankSize + u" gal.      " + tankDescription);
    page.Print({});
    const double x = page.CurrentX;
    const double y = page.CurrentY;
    const double foot = page.ScaleHeight() - page.ScaleHeight() / 12;
    page.Font.italic = true;
    page.CurrentX = 0;
    page.CurrentY = foot;
    page.Line(0, foot, page.ScaleWidth(), foot);
    page.Print({});
    page.Print(u"Report Created: " + Format(Now().date(), datePicture));
    page.Print(u"Page number:" + QString::number(pageNumber));
    page.Font.italic = false;
    page.CurrentX = x;
    page.CurrentY = y;
    page.setFoot(foot);
}

Report MakeLogReport(LogTab log, Database &database, const QString &datePicture, const std::optional<QString> &tankId)
{
    const LogReport &kind = reports[log];
    const auto run = std::make_shared<LogRun>(log, database, datePicture, tankId);
    return {QLatin1String(kind.dialogTitle), QLatin1String(kind.title), kind.landscape, [run] { return run->open(); },
            [run](Printer &page) { run->print(page); }};
}

QString EmptyLogText(LogTab log) { return QLatin1String(reports[log].empty); }
