#include "data/Tables.h"

#include "logic/logbook/LogKinds.h"
#include "logic/reminders/RecurrenceRule.h"
#include "logic/shell/Globals.h"

namespace {

struct Word
{
    CellKind kind;
    const char *stored;
    const char *word;
};

constexpr Word words[] = {
    {CellKind::WaterType, "1", "freshwater"}, {CellKind::WaterType, "2", "saltwater"},
    {CellKind::WaterType, "3", "reef"},       {CellKind::WaterType, "4", "brackish"},
    {CellKind::WaterType, "5", "pond"},       {CellKind::Pattern, "0", "daily"},
    {CellKind::Pattern, "1", "weekly"},       {CellKind::Pattern, "2", "monthly"},
    {CellKind::Pattern, "3", "yearly"},       {CellKind::Pattern, "4", "once"},
};

constexpr TextLimit reminderLimit{255, "The description must have at most 255 characters."};
constexpr TextLimit storedTextLimit{255, "This must have at most 255 characters."};

const QString noTank = QStringLiteral("The row must name a tank.");
const QString noDate = QStringLiteral("The row must have a date.");
const QString noTime = QStringLiteral("The row must have a time.");

auto limited(const TextLimit &limit)
{
    return [&limit](const QString &text) { return TooLong(limit, text); };
}

auto limited(const NumberLimit &limit)
{
    return [&limit](const QString &text) {
        const Complaint complaint = NoNumber(limit, text);
        return complaint ? complaint : TooMuch(limit, text);
    };
}

auto price(const char *name)
{
    return [name](const QString &text) { return BadPrice(QLatin1String(name), text); };
}

/// A log with the columns for the tank, the date and the time of an entry.
DataTable logOf(LogTab tab, const char *file, const char *entry, const QDateTime &now)
{
    const LogKind &kind = KindOf(tab);
    const QTime time = now.time();
    return {.file = QLatin1String(file),
            .table = QLatin1String(kind.table),
            .entry = QLatin1String(entry),
            .column = QLatin1String(kind.tankColumn),
            .columns = {{.name = QStringLiteral("tank"),
                         .stored = QLatin1String(kind.tankColumn),
                         .kind = CellKind::Tank,
                         .ifEmpty = noTank,
                         .isKey = true},
                        {.name = QStringLiteral("date"),
                         .stored = QLatin1String(kind.dateColumn),
                         .kind = CellKind::EntryDate,
                         .start = now.date(),
                         .ifEmpty = noDate,
                         .isKey = true},
                        {.name = QStringLiteral("time"),
                         .stored = QLatin1String(kind.timeColumn),
                         .kind = CellKind::Time,
                         .start = QTime(time.hour(), time.minute(), time.second()),
                         .ifEmpty = noTime,
                         .isKey = true}}};
}

/// A column whose values may be empty.
template <class Rule>
DataColumn plain(const char *name, const char *stored, CellKind kind, const Value &start, Rule rule)
{
    return {
        .name = QLatin1String(name), .stored = QLatin1String(stored), .kind = kind, .start = start, .complaint = rule};
}

DataColumn notes(const char *name, const char *stored, const QString &start)
{
    return plain(name, stored, CellKind::Notes, start, nullptr);
}

const QString nothing = QStringLiteral("");

DataTable tanks(const Globals &g)
{
    const QString water = g.gDefaultWaterType == u"SALT" ? QStringLiteral("2") : QStringLiteral("1");
    const auto badName = [](const QString &text) {
        const Complaint complaint = TooLong(tankNameLimit, text);
        return complaint ? complaint : BadTankName(text);
    };
    return {QStringLiteral("tanks.csv"),
            QStringLiteral("TANKLST"),
            QStringLiteral("tank"),
            {},
            {{.name = QStringLiteral("tank"),
              .stored = QStringLiteral("tankname"),
              .kind = CellKind::TankName,
              .ifEmpty = QLatin1String(noTankName),
              .complaint = badName,
              .isKey = true},
             plain("description", "Tankdesc", CellKind::Line, nothing, limited(tankDescriptionLimit)),
             {.name = QStringLiteral("size"),
              .stored = QStringLiteral("tanksize"),
              .kind = CellKind::Number,
              .start = double(startTankSize),
              .ifEmpty = QLatin1String(noTankSize),
              .complaint = limited(tankSizeLimit)},
             plain("water_type", "TankWaterType", CellKind::WaterType, water, nullptr),
             notes("notes", "tanknotes", nothing)}};
}

DataTable water(const Globals &g, const QDateTime &now)
{
    DataTable table = logOf(WaterTab, "water.csv", "water test", now);
    for (const MeasurementRow &row : measurements) {
        const StartValue &start = g.gDefaultWaterType == u"SALT" ? row.entry.salt : row.entry.fresh;
        const auto complaint = [&row, names = g.userFieldNames()](const QString &text) {
            const QStringList complaints = MeasurementComplaints(row, names, text);
            return complaints.isEmpty() ? std::nullopt : Complaint(complaints.front());
        };
        table.columns.push_back({.name = QString::fromLatin1(row.column).toLower(),
                                 .stored = QLatin1String(row.column),
                                 .kind = CellKind::Number,
                                 .start = QString::fromLatin1(start.text).toDouble(),
                                 .complaint = complaint});
    }
    table.columns.push_back(notes("comment", "Comment", startNote));
    return table;
}

DataTable livestock(const QDateTime &now)
{
    DataTable table = logOf(LivestockTab, "livestock.csv", "livestock entry", now);
    table.columns.insert(table.columns.end(),
                         {{.name = QStringLiteral("animal"),
                           .stored = QStringLiteral("animalname"),
                           .kind = CellKind::Line,
                           .ifEmpty = QLatin1String(noAnimal),
                           .complaint = limited(animalLimit),
                           .isKey = true},
                          {.name = QStringLiteral("quantity"),
                           .stored = QStringLiteral("quantity"),
                           .kind = CellKind::Number,
                           .start = double(startAnimals),
                           .ifEmpty = QLatin1String(animalsLimit.ifNoNumber),
                           .complaint = limited(animalsLimit)},
                          plain("status", "Status", CellKind::Line, nothing, limited(statusLimit)),
                          plain("price_paid", "price_paid", CellKind::Number, {}, price("Price Paid")),
                          plain("price_sold", "price_sold", CellKind::Number, {}, price("Price Sold")),
                          plain("date_lost", "datelost", CellKind::EntryDate, {}, nullptr),
                          plain("where_purchased", "where_purch", CellKind::Line, nothing, limited(placeLimit)),
                          notes("comment", "Comment", startNote)});
    return table;
}

DataTable maintenance(const QDateTime &now)
{
    DataTable table = logOf(MaintenanceTab, "maintenance.csv", "maintenance entry", now);
    table.columns.insert(
        table.columns.end(),
        {{.name = QStringLiteral("task"),
          .stored = QStringLiteral("maintlogtask"),
          .kind = CellKind::Line,
          .ifEmpty = QLatin1String(noTask),
          .complaint = limited(taskLimit)},
         plain("description", "maintlogdesc", CellKind::Line, startNote, limited(descriptionLimit)),
         plain("quantity", "maintlogqty", CellKind::Number, double(startQuantity), limited(quantityLimit)),
         plain("unit", "maintlogunit", CellKind::Line, nothing, limited(unitLimit)),
         notes("notes", "maintlognote", startNote)});
    return table;
}

DataTable reminders(const QDateTime &now)
{
    const RecurrenceRule rule = NewRule(now.date());
    return {QStringLiteral("reminders.csv"),
            QStringLiteral("MAINTSCHED"),
            QStringLiteral("reminder"),
            {},
            {{.name = QStringLiteral("reminder"),
              .stored = QStringLiteral("SchedTask"),
              .kind = CellKind::Line,
              .ifEmpty = QStringLiteral("The row must have a description of the reminder."),
              .complaint = limited(reminderLimit),
              .isKey = true},
             plain("start_date", "SchedStartDate", CellKind::Date, rule.StartDate, nullptr),
             plain("end_date", "SchedEndDate", CellKind::Date, rule.EndDate, nullptr),
             plain("pattern", "SchedRtype", CellKind::Pattern, int(rule.RecurrenceType), nullptr),
             plain("variant", "SchedRSubtype", CellKind::Whole, int(rule.RecurrenceSubtype), nullptr),
             plain("interval", "SchedInterval", CellKind::Whole, int(rule.RecurrenceInterval), nullptr),
             plain("detail", "SchedDetailText", CellKind::Detail, nothing, limited(storedTextLimit)),
             plain("sentence", "SchedEnglishDesc", CellKind::Line, {}, limited(storedTextLimit))},
            true};
}

} // namespace

int DataTable::find(const QString &name) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return int(i);
    return -1;
}

std::vector<DataTable> DataTables(const Globals &g, const QDateTime &now)
{
    return {tanks(g), water(g, now), livestock(now), maintenance(now), reminders(now)};
}

QString WordOf(CellKind kind, const Value &stored)
{
    const QString text = stored.text();
    for (const Word &row : words)
        if (row.kind == kind && text == QLatin1String(row.stored))
            return QLatin1String(row.word);
    return {};
}

Value OfWord(CellKind kind, const QString &word)
{
    for (const Word &row : words) {
        const QString stored = QLatin1String(row.stored);
        if (row.kind == kind && (word == stored || word.compare(QLatin1String(row.word), Qt::CaseInsensitive) == 0))
            return kind == CellKind::Pattern ? Value(stored.toInt()) : Value(stored);
    }
    return {};
}

QStringList Words(CellKind kind)
{
    QStringList all;
    for (const Word &row : words)
        if (row.kind == kind)
            all << QLatin1String(row.word);
    return all;
}
