// The twenty soonest of many dates.
#include <algorithm>

#include <gtest/gtest.h>

#include "reminders/Occurrences.h"

TEST(Upcoming, KeepsTheSoonestTwentyInOrderOfDateAndTask)
{
    // Dates come rule by rule, each in its own order; seven days with seven reminders on each, some alike but for case.
    const QStringList tasks{"feed", "Clean", "FEED", "dose", "Feed", "clean", "Ärger"};
    const QDate monday(1998, 6, 8);
    UpcomingReminders upcoming;
    std::vector<std::pair<QDate, QString>> all;
    for (const QString &task : tasks)
        for (int day = 6; day >= 0; --day) {
            upcoming.add(monday.addDays(day), task);
            all.emplace_back(monday.addDays(day), task);
        }
    std::stable_sort(all.begin(), all.end(), [](const auto &a, const auto &b) {
        return a.first != b.first ? a.first < b.first : a.second.compare(b.second, Qt::CaseInsensitive) < 0;
    });
    QStringList expected;
    for (std::size_t i = 0; i < 20; ++i)
        expected << OccurrenceText(upcomingRun, all[i].first, "DD.MM.YY") + ' ' + all[i].second;
    EXPECT_EQ(upcoming.texts("DD.MM.YY"), expected) << upcoming.texts("DD.MM.YY").join('|').toStdString();
    EXPECT_EQ(expected.mid(0, 5), QStringList({"Mon 08.06.98 Clean", "Mon 08.06.98 clean", "Mon 08.06.98 dose",
                                               "Mon 08.06.98 feed", "Mon 08.06.98 FEED"}));
    EXPECT_EQ(OccurrenceText(scheduleRun, monday, "YY-MM-DD"), "Monday 98-06-08");
    EXPECT_EQ(OccurrenceKey(monday), "19980608");
}
