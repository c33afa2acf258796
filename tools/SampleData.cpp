#include "SampleData.h"

#include <cmath>

#include <QDateTime>

#include "store/Database.h"

namespace {

const QString insertTank =
    QStringLiteral("INSERT INTO TANKLST (tankname, Tankdesc, tanksize, tanknotes, tankid, TankWaterType) "
                   "VALUES (?, ?, ?, ?, ?, ?)");
const QString insertTest =
    QStringLiteral("INSERT INTO WATERLOG (tankname, logdate, logtime, Ammonia, nitrite, nitrate, ph, orp, temp, "
                   "oxygen, dkh, calcium, copper, sg, "
                   "custom1, custom2, Comment) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");

// A new tank: its ammonia rises and falls, its nitrite follows, and there are no animals before both are gone.
constexpr double cycleDays = 30;
constexpr double keptByWaterChange = 1 - 10 / 55.0; // ten of 55 gallons, each Saturday after the test

const char *const commentsOfCycle[] = {" ", "No animals yet", " ", "Skimmer cleaned", " "};
const char *const commentsLater[] = {" ", "Fed brine shrimp", "Glass cleaned", " ", "All animals well"};

/// Rises from 0 at the start to 1 on the peak day and falls again; the greater `steepness`, the shorter the peak.
double hump(double day, double peakDay, double steepness)
{
    return std::pow(day / peakDay * std::exp(1 - day / peakDay), steepness);
}

/// The value as a test kit would show it that has so many steps per unit.
double rounded(double value, double stepsPerUnit) { return std::round(value * stepsPerUnit) / stepsPerUnit; }

QString commentOf(int test, double day, bool beforeWaterChange)
{
    if (beforeWaterChange)
        return QStringLiteral("Before water change");
    const auto &comments = day < cycleDays ? commentsOfCycle : commentsLater;
    return QString::fromLatin1(comments[test % 5]);
}

} // namespace

QString AddSampleTank(Database &database, const QString &name, const QString &description, int gallons,
                      const QString &waterType, const QString &notes)
{
    const QString id = QStringLiteral("03/01/2026 10:00:%1").arg(gallons % 60, 2, 10, QLatin1Char('0'));
    database.Execute(insertTank, {name, description, gallons, notes, id, waterType});
    return id;
}

void AddSampleWaterTests(Database &database, const QString &tankId, int count, const QDate &firstDay, int minutesApart,
                         bool salt)
{
    Database::Transaction whole(database);
    QDateTime moment(firstDay, QTime(9, 0), Qt::UTC);
    const double daysApart = minutesApart / 1440.0;
    double nitrate = 2;
    for (int i = 0; i < count; ++i) {
        const double day = i * daysApart;
        const double wave = std::sin(i * 0.7) + 0.4 * std::sin(i * 2.3);
        const double nitrite = 0.9 * hump(day, 12, 8);
        const QDateTime next = moment.addSecs(minutesApart * 60);
        const bool waterChange = moment.date().dayOfWeek() == Qt::Saturday && next.date() != moment.date();
        database.Execute(insertTest,
                         {tankId, moment.date(), moment.time(), rounded(0.8 * hump(day, 5, 3), 20),
                          rounded(nitrite, 20), rounded(nitrate, 2), rounded((salt ? 8.2 : 7.2) + 0.1 * wave, 20),
                          rounded(350 + 15 * wave, 1), rounded(78 + wave, 10), rounded(7 + 0.3 * wave, 10),
                          rounded(9 + 0.5 * wave, 10), salt ? rounded(410 + 12 * wave, 0.2) : 0.0, 0.0,
                          salt ? rounded(1.025 + 0.0005 * wave, 1000) : 0.0, 0.0, 0.0, commentOf(i, day, waterChange)});
        nitrate += (0.25 + 0.9 * nitrite) * daysApart; // from the food, and from what the bacteria turn into it
        if (waterChange)
            nitrate *= keptByWaterChange;
        moment = next;
    }
    whole.commit();
}
