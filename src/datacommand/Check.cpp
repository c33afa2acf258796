#include "datacommand/Check.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "datacommand/DataCommand.h"
#include "datacommand/KeepersData.h"
#include "datacommand/Restore.h"
#include "datacommand/TerminalDoors.h"
#include "logic/common/Measurements.h"
#include "logic/logbook/EntryRules.h"
#include "logic/logbook/LogKinds.h"
#include "logic/reminders/ReminderRun.h"
#include "logic/reminders/RuleFields.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Inspection.h"
#include "text/Dates.h"

namespace {

enum class Holds { Text, Number, Date, Time };

struct ColumnRule
{
    QString column;
    Holds holds;
    double most = HUGE_VAL; ///< the greatest number, or the length of a text
    bool isNeeded = false;
};

/// The rows of a table: the tanks, or the entries of a log.
struct TableRule
{
    const char *one, *many; ///< what the rows are called
    const LogKind *log;     ///< null for the tanks
    std::vector<ColumnRule> columns;
};

constexpr qsizetype anyLength = std::numeric_limits<qsizetype>::max();

ColumnRule text(const char *column, qsizetype longest, bool isNeeded = false)
{
    return {QLatin1String(column), Holds::Text, double(longest), isNeeded};
}

ColumnRule number(const char *column, double most) { return {QLatin1String(column), Holds::Number, most}; }

TableRule logRule(const char *one, const char *many, LogTab tab, const std::vector<ColumnRule> &columns)
{
    const LogKind &log = KindOf(tab);
    TableRule rule{
        one,
        many,
        &log,
        {{QLatin1String(log.dateColumn), Holds::Date, 0, true}, {QLatin1String(log.timeColumn), Holds::Time, 0, true}}};
    rule.columns.insert(rule.columns.end(), columns.begin(), columns.end());
    return rule;
}

std::vector<TableRule> tableRules()
{
    std::vector<ColumnRule> measured;
    for (const MeasurementRow &row : measurements)
        measured.push_back(number(row.column, row.entry.limit));
    return {
        {"tank",
         "tanks",
         nullptr,
         {text("tankname", tankNameLimit.longest, true), text("tankid", anyLength, true),
          text("Tankdesc", tankDescriptionLimit.longest), number("tanksize", tankSizeLimit.most),
          text("TankWaterType", 1, true)}},
        logRule("water test", "water tests", WaterTab, measured),
        logRule("livestock entry", "livestock entries", LivestockTab,
                {text("animalname", animalLimit.longest, true), number("quantity", animalsLimit.most),
                 text("Status", statusLimit.longest), number("price_paid", beyondPrices),
                 number("price_sold", beyondPrices), ColumnRule{QStringLiteral("datelost"), Holds::Date},
                 text("where_purch", placeLimit.longest)}),
        logRule("maintenance entry", "maintenance entries", MaintenanceTab,
                {text("maintlogtask", taskLimit.longest, true), text("maintlogdesc", descriptionLimit.longest),
                 text("maintlogunit", unitLimit.longest), number("maintlogqty", quantityLimit.most)}),
    };
}

/// What is wrong with a value; nothing if a window could have stored it.
std::optional<QString> faultOf(const ColumnRule &rule, const Value &value)
{
    const auto *text = std::get_if<QString>(&value.variant());
    if (value.isNull() || (text && text->isEmpty()))
        return rule.isNeeded ? std::optional(QStringLiteral("is missing")) : std::nullopt;
    switch (rule.holds) {
    case Holds::Text:
        if (double(value.text().size()) > rule.most)
            return QStringLiteral("has %1 characters; the window takes %2").arg(value.text().size()).arg(rule.most);
        break;
    case Holds::Number:
        if (text)
            return QStringLiteral("is \"%1\", which is not a number").arg(*text);
        if (value.toDouble() > rule.most)
            return QStringLiteral("is %1; the window takes at most %2").arg(value.text()).arg(rule.most, 0, 'g', 15);
        break;
    case Holds::Date:
        if (!std::holds_alternative<QDate>(value.variant()))
            return QStringLiteral("is \"%1\", which is not a date").arg(value.text());
        break;
    case Holds::Time:
        if (!std::holds_alternative<QTime>(value.variant()))
            return QStringLiteral("is \"%1\", which is not a time").arg(value.text());
        break;
    }
    return std::nullopt;
}

/// A part of an entry's name: dates and times as ISO, everything else unchanged.
QString partOf(const Value &value)
{
    if (const auto *date = std::get_if<QDate>(&value.variant()))
        return date->toString(Qt::ISODate);
    if (const auto *time = std::get_if<QTime>(&value.variant()))
        return time->toString(Qt::ISODate);
    return value.isNull() ? QStringLiteral("?") : value.text();
}

/// All rows of the table, with the name of the tank as NameOfTank.
QString selectOf(const TableRule &rule)
{
    if (!rule.log)
        return QStringLiteral("SELECT *, tankname AS NameOfTank FROM TANKLST");
    return QStringLiteral("SELECT l.*, t.tankname AS NameOfTank FROM %1 l LEFT JOIN TANKLST t ON t.tankid = l.%2")
        .arg(QLatin1String(rule.log->table), QLatin1String(rule.log->tankColumn));
}

QString nameOf(const TableRule &rule, const RowStream &rows)
{
    const auto part = [&rows](const char *column) { return partOf(rows.value(QLatin1String(column))); };
    const QString tank = u" \"" + part("NameOfTank") + u'"';
    if (!rule.log)
        return QLatin1String(rule.one) + tank;
    return QLatin1String(rule.one) + u" of" + tank + u", " + part(rule.log->dateColumn) + u' ' +
           part(rule.log->timeColumn);
}

QStringList findBadValues(Globals &globals)
{
    QStringList found;
    for (const TableRule &rule : tableRules())
        for (RowStream rows = globals.gDatabase->OpenForwardOnly(selectOf(rule)); !rows.EOF_(); rows.MoveNext())
            for (const ColumnRule &column : rule.columns)
                if (const auto fault = faultOf(column, rows.value(column.column)))
                    found << nameOf(rule, rows) + u": " + column.column + u' ' + *fault;
    return found;
}

QStringList findLostEntries(Globals &globals)
{
    QStringList found;
    for (const TableRule &rule : tableRules()) {
        if (!rule.log)
            continue;
        const QString sql = QStringLiteral("SELECT %2 AS tank, count(*) AS n FROM %1 WHERE NOT EXISTS "
                                           "(SELECT 1 FROM TANKLST WHERE tankid = %2) GROUP BY %2")
                                .arg(QLatin1String(rule.log->table),
                                     QLatin1String(rule.log->table) + u'.' + QLatin1String(rule.log->tankColumn));
        for (RowStream rows = globals.gDatabase->OpenForwardOnly(sql); !rows.EOF_(); rows.MoveNext())
            found << QStringLiteral("%1 of the tank with the id \"%2\"")
                         .arg(Counted(qint64(rows.value(QStringLiteral("n")).toDouble()), rule.one, rule.many),
                              rows.text(QStringLiteral("tank")));
    }
    return found;
}

const DateRange allDates{QDate(1, 1, 1), QDate(9999, 12, 31)};

/// Reminders without dates, and those that the editor would refuse to store.
QStringList findBadReminders(Globals &globals)
{
    const auto rules = LoadReminders(globals);
    QStringList found =
        RunReminders(globals, rules, {scheduleRun, {}, [](const QDate &, int) {}, [](const QString &, int) {}}).lines();
    const DateConventions dates{globals.options.DateOrder, globals.options.DatePicture};
    for (const RecurrenceRule &rule : rules) {
        bool occurs = false;
        if (Walk(rule, scheduleRun, allDates, dates.order, [&occurs](const QDate &) { occurs = true; }))
            continue; // already among those without dates
        if (!occurs) {
            found << rule.TaskDescription + u" (it never occurs)";
            continue;
        }
        EditorFields fields;
        fields.txt_TaskDescription = rule.TaskDescription;
        ShowRecurrence(rule, dates, fields);
        if (const auto complaint = EditFault(fields, dates))
            found << QStringLiteral("%1 (%2)").arg(rule.TaskDescription, complaint->text);
    }
    return found;
}

/// Prints one kind of finding: its lines, and what to do. Returns how many lines there are.
qsizetype tell(const QString &title, const QStringList &found, const QString &advice)
{
    if (found.isEmpty())
        return 0;
    Say(title);
    for (const QString &line : found)
        Say(u"  " + OnOneLine(line));
    Say(u"  What to do: " + advice);
    return found.size();
}

const QString restoreAdvice = QStringLiteral("make a copy of the folder first. \"ostrelmark-data restore\" lists older "
                                             "copies and puts one in place.");

} // namespace

int CheckData(KeepersData &data)
{
    Globals &globals = data.open();
    if (tell(QStringLiteral("The file is damaged:"), FindDamage(*globals.gDatabase), restoreAdvice) > 0)
        return DataFault; // nothing else that is read from a damaged file can be trusted
    qsizetype count = tell(QStringLiteral("The tables are not those of Ostrelmark:"),
                           FindSchemaFaults(*globals.gDatabase), restoreAdvice);
    if (count > 0)
        return DataFault;
    count += tell(QStringLiteral("Values that no window would have accepted:"), findBadValues(globals),
                  QStringLiteral("open these entries in Ostrelmark and correct the values."));
    count +=
        tell(QStringLiteral("Entries of tanks that no longer exist:"), findLostEntries(globals),
             QStringLiteral("no tank shows them. An older copy may still have the tank: \"ostrelmark-data restore\" "
                            "lists the copies."));
    count += tell(QStringLiteral("Reminders with mistakes:"), findBadReminders(globals),
                  QStringLiteral("change or delete them in \"Add or Change Reminders\"."));
    Say(QStringLiteral("%1: %2; %3.")
            .arg(globals.gDatabase->fileName(), ContentInWords(CountContent(*globals.gDatabase)),
                 count == 0 ? QStringLiteral("nothing was found") : Counted(count, "finding", "findings")));
    return count == 0 ? DataDone : DataFault;
}
