#include "tracking/Settings.h"

#include "fakes/MemoryPreferences.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const QString kGoalKey = settings::dailyGoalHours.key();

TEST(Settings, GoalIsTwoHoursUntilOneIsStored) {
    fakes::MemoryPreferences preferences;
    EXPECT_EQ(settings::dailyGoalHours.read(preferences), 2.0);
    for (const double stored : {0.0, -1.0, -1e300}) {
        settings::dailyGoalHours.write(preferences, stored);
        EXPECT_EQ(settings::dailyGoalHours.read(preferences), 2.0) << stored;
    }
    preferences.setString(kGoalKey, QStringLiteral("plenty"));
    EXPECT_EQ(settings::dailyGoalHours.read(preferences), 2.0);
    preferences.setString(kGoalKey, QStringLiteral("nan"));
    EXPECT_EQ(settings::dailyGoalHours.read(preferences), 2.0);
}

TEST(Settings, GoalReadsAtMostADayButStoresWhatWasGiven) {
    fakes::MemoryPreferences preferences;
    settings::dailyGoalHours.write(preferences, 30);
    EXPECT_EQ(settings::dailyGoalHours.read(preferences), 24.0);
    EXPECT_EQ(preferences.number(kGoalKey), 30.0);
    settings::dailyGoalHours.write(preferences, 0.25);
    EXPECT_EQ(settings::dailyGoalHours.read(preferences), 0.25);
    preferences.setString(kGoalKey, QStringLiteral("5e-324"));
    EXPECT_GT(settings::dailyGoalHours.read(preferences), 0.0);
    EXPECT_LT(settings::dailyGoalHours.read(preferences), 1.0);
}

TEST(Settings, IdleThresholdUnderTenSecondsCountsAsAbsent) {
    fakes::MemoryPreferences preferences;
    EXPECT_EQ(settings::idleThresholdSeconds.read(preferences), 180.0);
    for (const auto& [stored, read] : {std::pair(9.999, 180.0), {10.0, 10.0}, {1e300, 1e300}}) {
        settings::idleThresholdSeconds.write(preferences, stored);
        EXPECT_EQ(settings::idleThresholdSeconds.read(preferences), read);
    }
}

TEST(Settings, ValueThatIsNoneOfItsTypeReadsAsTheDefault) {
    fakes::MemoryPreferences preferences;
    preferences.setString(settings::autoMode.key(), QStringLiteral("perhaps"));
    preferences.setString(settings::autoStart.key(), QStringLiteral("perhaps"));
    preferences.setString(settings::skillsMigrationVersion.key(), QStringLiteral("1.5"));
    EXPECT_TRUE(settings::autoMode.read(preferences));
    EXPECT_FALSE(settings::autoStart.read(preferences));
    EXPECT_EQ(settings::skillsMigrationVersion.read(preferences), 0);
    EXPECT_EQ(settings::autoMode.stored(preferences), std::nullopt);
}

TEST(Settings, TextThatIsStoredEmptyIsStored) {
    fakes::MemoryPreferences preferences;
    EXPECT_EQ(settings::projectName.stored(preferences), std::nullopt);
    EXPECT_EQ(settings::projectName.read(preferences), QString());
    settings::projectName.write(preferences, QString());
    EXPECT_TRUE(settings::projectName.stored(preferences).has_value());
}

TEST(Settings, ReviewIsSeenWeekByWeek) {
    fakes::MemoryPreferences preferences;
    settings::reviewSeen.write(preferences, {2026, 9}, true);
    EXPECT_EQ(preferences.boolean(QStringLiteral("wrapped.seen.2026-9")), true);
    EXPECT_TRUE(settings::reviewSeen.read(preferences, {2026, 9}));
    EXPECT_FALSE(settings::reviewSeen.read(preferences, {2026, 10}));
}

TEST(Settings, WatcherHearsOfItsKeyAloneUntilItGoes) {
    fakes::MemoryPreferences preferences;
    int told = 0;
    {
        const QObject context;
        settings::autoMode.watch(preferences, &context, [&] {
            ++told;
            EXPECT_FALSE(settings::autoMode.read(preferences));
        });
        settings::autoStart.write(preferences, true);
        EXPECT_EQ(told, 0);
        settings::autoMode.write(preferences, false);
        EXPECT_EQ(told, 1);
    }
    settings::autoMode.remove(preferences);
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace vantle
