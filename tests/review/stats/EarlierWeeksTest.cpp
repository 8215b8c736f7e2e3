#include "review/stats/EarlierWeeks.h"

#include "review/stats/ReviewSamples.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using samples::at;
using samples::worked;
using testing::ElementsAre;

/// A Wednesday, in a week that began on Monday, 2026-03-09.
EarlierWeeks weeksOf(const std::vector<Session>& sessions) {
    return {sessions, at("2026-03-11T12:00:00Z"), at("2026-03-09T00:00:00Z"),
            samples::calendarIn(QStringLiteral("UTC"))};
}

Session counting(Session session, std::int64_t seconds) {
    session.activeSeconds = seconds;
    return session;
}

TEST(EarlierWeeks, RecordThatEndsWithTheWeekBelongsToTheNext) {
    const auto weeks = weeksOf({worked("2026-03-08T23:00:00Z", 60)});
    EXPECT_TRUE(weeks.hours.empty());
    EXPECT_EQ(weeks.lastWeekHours, std::nullopt);
}

TEST(EarlierWeeks, LastWeekBeginsWithItsFirstMoment) {
    const auto weeks = weeksOf({worked("2026-03-01T23:00:00Z", 60)});
    EXPECT_EQ(weeks.lastWeekHours, 1.0);
    EXPECT_EQ(weeksOf({worked("2026-03-01T22:59:00Z", 60)}).lastWeekHours, std::nullopt);
}

TEST(EarlierWeeks, OneSecondIsWork) {
    const auto weeks = weeksOf({counting(worked("2026-03-03T10:00:00Z", 10), 1)});
    EXPECT_EQ(weeks.lastWeekHours, 1.0 / 3600.0);
    EXPECT_THAT(weeks.hours, ElementsAre(1.0 / 3600.0));
}

TEST(EarlierWeeks, WeekWithoutASecondIsNone) {
    const auto weeks = weeksOf({counting(worked("2026-03-03T10:00:00Z", 10), 0)});
    EXPECT_EQ(weeks.lastWeekHours, std::nullopt);
    EXPECT_TRUE(weeks.hours.empty());
}

TEST(EarlierWeeks, ThirdBestHasARankAndTheFourthHasNone) {
    const auto weeks =
        weeksOf({worked("2026-02-11T10:00:00Z", 300), worked("2026-02-18T10:00:00Z", 240),
                 worked("2026-02-25T10:00:00Z", 180)});
    EXPECT_EQ(weeks.rankOf(6), 1);
    EXPECT_EQ(weeks.rankOf(5), 1);
    EXPECT_EQ(weeks.rankOf(4), 2);
    EXPECT_EQ(weeks.rankOf(3), 3);
    EXPECT_EQ(weeks.rankOf(2), std::nullopt);
}

} // namespace
} // namespace vantle
