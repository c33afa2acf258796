#include "logic/logbook/LogReports.h"

#include <QScopeGuard>

#include "platform/core/Doors.h"
#include "platform/core/Printer.h"
#include "store/Database.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

constexpr double gap = 1 / 160.; ///< between two columns, as a fraction of the page's width

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
        m_kind(KindOf(log)), m_report(m_kind.report), m_database(database), m_datePicture(datePicture), m_tankId(tankId)
    {
    }

    bool open()
    {
        m_rows.reset();
        m_entries = qint64(select(QStringLiteral("COUNT(*) AS entries"))->value(QStringLiteral("entries")).toDouble());
        m_rows = select(QStringLiteral("t.Tankname AS tank, t.Tankdesc, t.Tanksize, e.*"));
        return !m_rows->EOF_();
    }

    void print(Printer &page)
    {
        if (!m_rows)
            open(); // a preview can print several times
        const auto endReading = qScopeGuard([this] { m_rows.reset(); });
        const bool orientation = page.Landscape();
        if (m_report.landscape)
            page.setLandscape(true);
        bool firstTank = true;
        QString tank;
        int pageNumber = 1;
        for (qint64 entry = 1; !m_rows->EOF_(); ++entry) {
            if (const QString name = text("tank"); firstTank || name != tank) {
                if (!firstTank)
                    page.NewPage();
                firstTank = false;
                tank = name;
                pageNumber = 1;
                printTop(page, QLatin1String(m_report.title), pageNumber);
            }
            printEntry(page);
            page.Progress(entry, m_entries);
            m_rows->MoveNext();
            // This compares a horizontal position with a height, so it is never true: a long log continues on the next
            // page by the printer's own page feed.
            if (page.CurrentX > page.ScaleHeight() - page.ScaleHeight() / 11 && !m_rows->EOF_()) {
                page.NewPage();
                printTop(page, QStringLiteral("Ostrelmark Livestock Log"), ++pageNumber);
            }
        }
        page.EndDoc();
        if (m_report.landscape)
            page.setLandscape(orientation);
    }

private:
    /// Selects from the entries with their tanks, ordered by tank and date. The tank's name is called "tank", because
    /// "tankname" in the logs is the tank's id.
    std::unique_ptr<RowStream> select(const QString &what) const
    {
        const QString sql = QStringLiteral("SELECT %1 FROM %2 e JOIN Tanklst t ON e.%3 = t.tankid %4 "
                                           "ORDER BY t.Tankname COLLATE CASEBLIND, e.%5, e.%6")
                                .arg(what, QLatin1String(m_kind.table), QLatin1String(m_kind.tankColumn),
                                     QLatin1String(m_tankId ? "WHERE t.tankid = ?" : ""),
                                     QLatin1String(m_kind.dateColumn), QLatin1String(m_kind.timeColumn));
        return std::unique_ptr<RowStream>(
            new RowStream(m_database.OpenForwardOnly(sql, m_tankId ? Parameters{*m_tankId} : Parameters{})));
    }
    QString text(const char *column) { return m_rows->text(QLatin1String(column)); }

    void printTop(Printer &page, const QString &title, int pageNumber)
    {
        PrintPageHeadings(page, title, text("tank"), text("Tanksize"), text("Tankdesc"), pageNumber, m_datePicture);
        std::vector<PrintCell> heads;
        for (size_t i = 0; i < m_report.columns.size(); ++i)
            heads.push_back(cell(page, i, QLatin1String(m_report.columns[i].head)));
        page.Font.underline = true;
        page.PrintRow(heads);
        page.Font.underline = false;
        page.Print({});
    }

    /// A cell of that column, which ends a little before the next column.
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

    /// The date and time of an entry. A missing one is left empty, and a text that is not a date or time is printed
    /// unchanged.
    QString momentText()
    {
        const Value date = m_rows->value(QLatin1String(m_kind.dateColumn));
        const Value time = m_rows->value(QLatin1String(m_kind.timeColumn));
        const auto *day = std::get_if<QDate>(&date.variant());
        return (day ? Format(*day, m_datePicture) : date.text()) + QLatin1String(m_report.momentSeparator) +
               time.text();
    }

    void printEntry(Printer &page)
    {
        std::vector<PrintCell> cells;
        for (size_t i = 0; i < m_report.columns.size(); ++i) {
            if (m_report.columns[i].column) {
                cells.push_back(cell(page, i, cellText(m_report.columns[i])));
                continue;
            }
            // Date and time are never cut off: in the narrow column of the water log they take two lines, and a smaller
            // font if necessary.
            cells.push_back(cell(page, i, momentText()));
            cells.back().shrink = true;
        }
        page.PrintRow(cells);
        for (const auto &line : m_report.moreLines) {
            QStringList texts;
            for (const char *column : line)
                texts.append(text(column));
            page.PrintRow({cell(page, 1, texts.join(QStringLiteral("  ")))});
        }
    }

    const LogKind &m_kind;
    const LogReport &m_report;
    Database &m_database;
    QString m_datePicture;
    std::optional<QString> m_tankId;
    std::unique_ptr<RowStream> m_rows; ///< open, but not all printed yet
    qint64 m_entries = 0;
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
    const LogReport &report = KindOf(log).report;
    const auto run = std::make_shared<LogRun>(log, database, datePicture, tankId);
    return {QLatin1String(report.dialogTitle), QLatin1String(report.title), report.landscape,
            [run] { return run->open(); }, [run](Printer &page) { run->print(page); }};
}

QString EmptyLogText(LogTab log) { return QLatin1String(KindOf(log).report.empty); }
