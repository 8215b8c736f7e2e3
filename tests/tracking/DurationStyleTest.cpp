#include "tracking/DurationStyle.h"

#include "fakes/MemoryPreferences.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using enum DurationStyle;

const QString kStyleKey = settings::durationStyle.key();

TEST(DurationStyle, HasAStoredValueALabelAndASample) {
    const std::array<std::array<const char*, 3>, 4> expected = {{
        {"natural", "Natural", "3.5 h"},
        {"hoursMinutes", "Hours and minutes", "3 h 30 min"},
        {"minutes", "Minutes only", "210 min"},
        {"clock", "Clock", "3:30:12"},
    }};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const DurationStyle style = durationstyle::all[i];
        EXPECT_EQ(durationstyle::rawValue(style), QLatin1String(expected[i][0]));
        EXPECT_EQ(durationstyle::label(style), QLatin1String(expected[i][1]));
        EXPECT_EQ(durationstyle::sample(style), QLatin1String(expected[i][2]));
        EXPECT_EQ(durationstyle::fromRawValue(QLatin1String(expected[i][0])), style);
    }
}

TEST(DurationStyle, AbsentOrUnknownReadsAsNatural) {
    fakes::MemoryPreferences preferences;
    EXPECT_EQ(settings::durationStyle.read(preferences), Natural);
    for (const char* stored : {"", "Clock", " clock", "fortnights"}) {
        preferences.setString(kStyleKey, QLatin1String(stored));
        EXPECT_EQ(settings::durationStyle.read(preferences), Natural) << stored;
    }
    preferences.setString(kStyleKey, QStringLiteral("hoursMinutes"));
    EXPECT_EQ(settings::durationStyle.read(preferences), HoursMinutes);
}

TEST(DurationStyle, IsStoredBeforeHistoryViewsAreToldAndTheyAreToldAtOnce) {
    fakes::MemoryPreferences preferences;
    NotificationCenter center;
    int told = 0;
    QObject::connect(&center, &NotificationCenter::HFSessionsChanged, [&] {
        ++told;
        EXPECT_EQ(settings::durationStyle.read(preferences), Clock);
    });
    durationstyle::adopt(Clock, preferences, center);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(preferences.string(kStyleKey), QStringLiteral("clock"));
}

} // namespace
} // namespace vantle
