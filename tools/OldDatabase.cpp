#include "OldDatabase.h"

#include "store/Database.h"
#include "store/NewDatabase.h"
#include "store/WordList.h"

namespace {

// The file begins as an empty database of the present version; these statements remove what each version added.
const char *const withoutVersion20[] = {
    "ALTER TABLE MAINTSCHED DROP COLUMN SchedRtype",
    "ALTER TABLE MAINTSCHED DROP COLUMN SchedRSubtype",
    "ALTER TABLE MAINTSCHED DROP COLUMN SchedDetailText",
    "ALTER TABLE MAINTSCHED DROP COLUMN SchedEnglishDesc",
    "ALTER TABLE MAINTSCHED DROP COLUMN SchedEndDate",
    "UPDATE CONFIG SET db_version = '1.1 '",
    "PRAGMA user_version = 11",
};
const char *const withoutVersion11[] = {
    "ALTER TABLE CONFIG DROP COLUMN db_version",
    "ALTER TABLE TANKLST DROP COLUMN TankWaterType",
    "ALTER TABLE ANIMALLIST DROP COLUMN AnimalType",
    "PRAGMA user_version = 10",
};

constexpr int rowsOfATank = 100;

QDate dayOf(int row) { return QDate(1996, 1, 1).addDays(row); }
QTime timeOf(int row) { return QTime(row % 24, row * 7 % 60, row * 13 % 60); }
QString tankOf(int row) { return QStringLiteral("01/01/1996 10:%1").arg(row / rowsOfATank, 4, 10, QLatin1Char('0')); }

struct TableRows
{
    const char *insert;
    Parameters (*row)(int row);
};

constexpr TableRows logs[] = {
    {"INSERT INTO WATERLOG (tankname, logdate, logtime, ph, nitrate, temp, Comment) VALUES (?, ?, ?, ?, ?, ?, ?)",
     [](int row) {
         return Parameters{tankOf(row),
                           dayOf(row),
                           timeOf(row),
                           8 + row % 5 / 10.0,
                           row % 40,
                           76 + row % 9 / 2.0,
                           QStringLiteral("Test \"%1\", it's well").arg(row)};
     }},
    {"INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogunit, maintlogqty) "
     "VALUES (?, ?, ?, ?, ?, ?)",
     [](int row) {
         return Parameters{tankOf(row),        dayOf(row), timeOf(row), QStringLiteral("Water Change"),
                           QString("gallons"), row % 50};
     }},
    {"INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Status, price_paid, datelost) "
     "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
     [](int row) {
         return Parameters{
             tankOf(row), dayOf(row),        timeOf(row),      QStringLiteral("Tang - Yellow"),
             1 + row % 9, QString("Active"), 4.5 * (row % 20), row % 3 == 0 ? Value(dayOf(row + 400)) : Value()};
     }},
    // Every sixth reminder has no end, and some begin on February 29.
    {"INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedInterval, schedyears, schedcomment) "
     "VALUES (?, ?, ?, ?, ?)",
     [](int row) {
         return Parameters{QStringLiteral("Reminder %1").arg(row), row % 4 == 1 ? QDate(1996, 2, 29) : dayOf(row),
                           1 + row % 30, row % 6 == 0 ? Value() : Value(row % 6), QStringLiteral("old")};
     }},
};

void addTanks(Database &database, int rows)
{
    for (int row = 0; row < rows; row += rowsOfATank)
        database.Execute(QStringLiteral("INSERT INTO TANKLST (tankname, Tankdesc, tanksize, tanknotes, tankid) "
                                        "VALUES (?, ?, ?, ?, ?)"),
                         {QStringLiteral("Tank %1").arg(row / rowsOfATank), QStringLiteral("An old one"),
                          20 + row / rowsOfATank, QStringLiteral("Set up long ago."), tankOf(row)});
}

void addWords(Database &database, bool typed)
{
    const QString insert = QStringLiteral("INSERT INTO ANIMALLIST (animalname) VALUES (?)");
    for (const char *animal : marineAnimals())
        database.Execute(insert, {QString::fromUtf8(animal)});
    if (!typed)
        return;
    database.Execute(QStringLiteral("UPDATE ANIMALLIST SET AnimalType = '2'"));
    for (const Word &word : upgradeWords())
        database.Execute(QStringLiteral("INSERT INTO ANIMALLIST (animalname, AnimalType) VALUES (?, ?)"),
                         {QString::fromUtf8(word.name), QString::fromLatin1(word.type)});
}

} // namespace

void WriteOldDatabase(const QString &fileName, const QString &version, int rows)
{
    CreateDatabase(fileName);
    const auto database = Database::OpenDatabase(fileName);
    Database::Transaction whole(*database);
    database->Execute(QStringLiteral("DELETE FROM ANIMALLIST"));
    for (const char *statement : withoutVersion20)
        database->Execute(QLatin1String(statement));
    const bool isFirst = version == u"1.0";
    if (isFirst)
        for (const char *statement : withoutVersion11)
            database->Execute(QLatin1String(statement));
    if (rows > 0)
        addWords(*database, !isFirst);
    addTanks(*database, rows);
    if (!isFirst)
        database->Execute(QStringLiteral("UPDATE TANKLST SET TankWaterType = '3'"));
    for (const TableRows &log : logs)
        for (int row = 0; row < rows; ++row)
            database->Execute(QLatin1String(log.insert), log.row(row));
    whole.commit();
}
