#include "tracking/DailyGoal.h"

#include "fakes/MemoryPreferences.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const QString kKey = QLatin1String(dailygoal::hoursKey);

TEST(DailyGoal, IsTwoHoursUntilOneIsStored) {
    fakes::MemoryPreferences preferences;
    EXPECT_EQ(dailygoal::hours(preferences), 2.0);
    for (const double stored : {0.0, -1.0, -1e300}) {
        dailygoal::setHours(stored, preferences);
        EXPECT_EQ(dailygoal::hours(preferences), 2.0) << stored;
    }
    preferences.setString(kKey, QStringLiteral("plenty"));
    EXPECT_EQ(dailygoal::hours(preferences), 2.0);
    preferences.setString(kKey, QStringLiteral("nan"));
    EXPECT_EQ(dailygoal::hours(preferences), 2.0);
}

TEST(DailyGoal, ReadsAtMostADayButStoresWhatWasGiven) {
    fakes::MemoryPreferences preferences;
    dailygoal::setHours(30, preferences);
    EXPECT_EQ(dailygoal::hours(preferences), 24.0);
    EXPECT_EQ(preferences.number(kKey), 30.0);
    dailygoal::setHours(0.25, preferences);
    EXPECT_EQ(dailygoal::hours(preferences), 0.25);
}

TEST(DailyGoal, IsLabelledLikeAnyTotal) {
    EXPECT_EQ(dailygoal::label(2, DurationStyle::Natural), QStringLiteral("2 h"));
    EXPECT_EQ(dailygoal::label(1.5, DurationStyle::HoursMinutes), QStringLiteral("1 h 30 min"));
}

} // namespace
} // namespace vantle
