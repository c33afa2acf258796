// The sample tank of the pictures is one that a keeper would believe.
#include "SampleData.h"
#include "StoreFixture.h"

TEST_F(StoreTest, TheSampleTankCyclesBeforeItHasAnimals)
{
    const QString reef = AddSampleTank(*db, "Reef", {}, 55, "3", {});
    AddSampleWaterTests(*db, reef, 60, QDate(2026, 4, 21), 1440, true);
    const QString steps =
        "FROM (SELECT nitrate, Comment, lead(nitrate) OVER (ORDER BY logdate) AS after FROM WATERLOG) ";
    const std::pair<QString, QString> askedAndTold[] = {
        {"SELECT (SELECT logdate FROM WATERLOG ORDER BY Ammonia DESC LIMIT 1) < "
         "(SELECT logdate FROM WATERLOG ORDER BY nitrite DESC LIMIT 1)",
         "1"},
        {"SELECT Ammonia + nitrite FROM WATERLOG ORDER BY logdate DESC LIMIT 1", "0.0"},
        {"SELECT count(*) > 0 FROM WATERLOG WHERE Comment = 'All animals well'", "1"},
        {"SELECT count(*) FROM WATERLOG WHERE Comment = 'All animals well' AND Ammonia + nitrite > 0", "0"},
        {"SELECT max(after - nitrate) <= 1.5 AND min(after - nitrate) >= -2.5 " + steps, "1"},
        {"SELECT count(*) > 5 AND max(after - nitrate) <= 0 " + steps + "WHERE Comment = 'Before water change'", "1"},
    };
    for (const auto &[ask, told] : askedAndTold)
        EXPECT_EQ(asked(ask), told) << ask.toStdString();
}
