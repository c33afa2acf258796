#include "store/Upgrade.h"

#include <algorithm>

#include "store/Database.h"
#include "store/schema.h"
#include "store/WordList.h"

namespace {

/// One line of a step: a column to add or a statement to run, and the position of the progress bar afterwards.
struct Line
{
    const char *table; ///< null: a statement
    const char *text;  ///< the column's name, or the statement
    FieldType type;
    int size; ///< of a text; 0 for the default size
    int bar;  ///< 0 leaves the bar where it is
};

constexpr Line add(const char *table, const char *column, FieldType type, int size, int bar)
{
    return {table, column, type, size, bar};
}

constexpr Line run(const char *statement, int bar) { return {nullptr, statement, FieldType::Text, 0, bar}; }

// Every old tank becomes a saltwater tank with fish only, because the old list of animals was all saltwater.
constexpr Line toVersion11[] = {
    add("Config", "db_version", FieldType::Text, 4, 0),
    run("UPDATE CONFIG SET db_version = '1.1 '", 10),
    add("Tanklst", "TankWaterType", FieldType::Text, 1, 20),
    run("UPDATE TANKLST SET TankWaterType = '2'", 30),
    add("animallist", "AnimalType", FieldType::Text, 1, 40),
    run("UPDATE ANIMALLIST SET AnimalType = '2'", 50),
    run("PRAGMA user_version = 11", 0),
};

// Every old reminder becomes a daily rule that ends `schedyears` years after its start, on the same day, or on February
// 28 where that year has no 29th. Without years it has no end.
constexpr Line toVersion20[] = {
    add("Maintsched", "SchedRtype", FieldType::Integer, 0, 20),
    add("Maintsched", "SchedRSubtype", FieldType::Integer, 0, 30),
    add("Maintsched", "SchedDetailText", FieldType::Text, 0, 40),
    add("Maintsched", "SchedEnglishDesc", FieldType::Text, 0, 50),
    add("Maintsched", "SchedEndDate", FieldType::Date, 0, 60),
    run("UPDATE MAINTSCHED SET SchedRtype = 0", 70),
    run("UPDATE MAINTSCHED SET SchedEndDate = min("
        "date(SchedStartDate, CAST(round(schedyears) AS INTEGER) || ' years'), "
        "date(SchedStartDate, 'start of month', CAST(round(schedyears) AS INTEGER) || ' years', '+1 month', '-1 day'))",
        80),
    run("UPDATE CONFIG SET db_version = '2.0 '", 0),
    run("PRAGMA user_version = 20", 0),
};
static_assert(schema::userVersion == 20);

bool hasColumn(Database &database, const char *table, const char *column)
{
    const auto fields = database.Fields(QLatin1String(table));
    return std::any_of(fields.begin(), fields.end(), [column](const FieldDef &field) {
        return field.Name.compare(QLatin1String(column), Qt::CaseInsensitive) == 0;
    });
}

void runLines(Database &database, std::span<const Line> lines, const BarMoves &bar)
{
    for (const Line &line : lines) {
        // An earlier release upgraded without a transaction, so a file on which it was interrupted already has some of
        // the columns.
        if (line.table && !hasColumn(database, line.table, line.text))
            database.Append(QLatin1String(line.table), {QLatin1String(line.text), line.type, line.size});
        else if (!line.table)
            database.Execute(QLatin1String(line.text));
        if (line.bar > 0)
            bar(line.bar);
    }
}

void addWords(Database &database, const BarMoves &bar)
{
    for (const Word &word : upgradeWords()) {
        const bool isTask = *word.type == 'M';
        (isTask ? AddMaintenanceTask : AddFreshAnimal)(database, QString::fromUtf8(word.name));
        if (word.bar > 0)
            bar(word.bar);
    }
}

void addWord(Database &database, const QString &name, const char *type)
{
    static const QString insert = QStringLiteral("INSERT INTO ANIMALLIST (animalname, AnimalType) VALUES (?, ?)");
    database.Execute(insert, {name, QString::fromLatin1(type)});
}

constexpr UpgradeStep steps[] = {
    {"1.1 ",
     [](Database &database, const BarMoves &bar) {
         Database::Transaction whole(database);
         runLines(database, toVersion11, bar);
         addWords(database, bar);
         whole.commit();
     }},
    {"2.0 ",
     [](Database &database, const BarMoves &bar) {
         Database::Transaction whole(database);
         runLines(database, toVersion20, bar);
         whole.commit();
     }},
};

std::span<const Line> linesOf(const UpgradeStep &step)
{
    return &step == &steps[0] ? std::span<const Line>(toVersion11) : std::span<const Line>(toVersion20);
}

} // namespace

std::span<const UpgradeStep> UpgradeSteps(const QString &version)
{
    const std::span<const UpgradeStep> all = steps;
    if (version.trimmed() == u"1.1")
        return all.subspan(1);
    return version == u"0.0 " ? all : all.first(0); // "0.0" without the blank is not one of our versions
}

bool IsOfLaterVersion(const QString &version, const QString &table, const QString &column)
{
    const auto isSame = [](const char *one, const QString &other) {
        return other.compare(QLatin1String(one), Qt::CaseInsensitive) == 0;
    };
    for (const UpgradeStep &step : UpgradeSteps(version))
        if (std::ranges::any_of(linesOf(step), [&](const Line &line) {
                return line.table && isSame(line.table, table) && isSame(line.text, column);
            }))
            return true;
    return false;
}

void AddFreshAnimal(Database &database, const QString &name) { addWord(database, name, "1"); }

void AddMaintenanceTask(Database &database, const QString &name) { addWord(database, name, "M"); }
