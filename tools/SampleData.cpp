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

const char *const comments[] = {" ", "Before water change", "Fed brine shrimp, cleaned glass", "New bulb",
                                "All animals well"};

double rounded(double value) { return std::round(value * 1000) / 1000; }

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
    for (int i = 0; i < count; ++i, moment = moment.addSecs(minutesApart * 60)) {
        const double wave = std::sin(i * 0.7) + 0.4 * std::sin(i * 2.3);
        const double cycle = std::exp(-i / 6.0); // a new tank's ammonia and nitrite fade
        database.Execute(insertTest,
                         {tankId, moment.date(), moment.time(), rounded(0.8 * cycle),
                          rounded(0.6 * cycle * (1 + wave / 4)), rounded(10 + 6 * wave),
                          rounded((salt ? 8.2 : 7.2) + 0.1 * wave), rounded(350 + 15 * wave), rounded(78 + wave),
                          rounded(7 + 0.3 * wave), rounded(9 + 0.5 * wave), salt ? rounded(410 + 12 * wave) : 0.0, 0.0,
                          salt ? rounded(1.023 + 0.001 * wave) : 0.0, 0.0, 0.0, QString::fromLatin1(comments[i % 5])});
    }
    whole.commit();
}
