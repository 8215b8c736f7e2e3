// Reviews of realistic logs: what a user did, and what the review says.
#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

#include <ostream>

namespace vantle {
namespace {

using samples::at;
using samples::worked;
using Sessions = std::vector<Session>;

/// `count` days in a row of such a session, the first at `first`.
Sessions daily(const char* first, int count, std::int64_t minutes,
               const QString& skill = QStringLiteral("building")) {
    Sessions sessions;
    for (int day = 0; day < count; ++day) {
        Session session = worked(first, minutes, skill);
        session.startedAt += Seconds(86400.0 * day);
        session.endedAt += Seconds(86400.0 * day);
        sessions.push_back(session);
    }
    return sessions;
}

Sessions together(std::initializer_list<Sessions> parts) {
    Sessions all;
    for (const Sessions& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    std::ranges::stable_sort(all, {}, &Session::endedAt);
    return all;
}

/// A founder's week: each of eight skills for an hour on each of five days.
Sessions eightSkills() {
    Sessions all;
    for (int skill = 0; skill < 8; ++skill) {
        const std::string start = "2026-03-09T" + std::string(skill < 1 ? "0" : "") +
                                  std::to_string(9 + skill) + ":00:00Z";
        all = together({all, daily(start.c_str(), 5, 60, QStringLiteral("skill%1").arg(skill))});
    }
    return all;
}

Sessions byHand(Sessions sessions) {
    for (Session& session : sessions)
        session.source = sourceManual();
    return sessions;
}

struct Row {
    const char* who;
    Sessions sessions;
    const char* zone;
    const char* now;
    WrappedPeriod period;

    // What comes of it
    int sessionCount;
    double totalHours;
    int activeDays;
    int goalHitDays; ///< of two hours a day
    const char* typicalStart;
    const char* persona;
    const char* topSkill;
    const char* firstSuperlative;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.who; }

const std::vector<Row>& rows() {
    using enum WrappedPeriod;
    static const std::vector<Row> table = {
        {"student, an hour before each of four lectures", daily("2026-03-09T06:30:00Z", 4, 60),
         "Europe/Berlin", "2026-03-12T20:00:00Z", Week, 4, 4.0, 4, 0, "7\u202FAM", "", "Build",
         "You showed up every single day this week."},
        {"night worker, ends after midnight", daily("2026-03-09T22:30:00Z", 5, 180),
         "Europe/Berlin", "2026-03-15T12:00:00Z", Week, 5, 15.0, 5, 5, "11\u202FPM", "Night Owl",
         "Build", "You hit your daily goal 5 times."},
        {"founder with eight skills", eightSkills(), "UTC", "2026-03-13T20:00:00Z", Week, 40, 40.0,
         5, 5, "1\u202FPM", "Steady Hand", "Skill0", "You hit your daily goal 5 times."},
        {"empty week after a full one", daily("2026-03-02T09:00:00Z", 5, 60), "UTC",
         "2026-03-11T12:00:00Z", Week, 0, 0.0, 0, 0, "", "", "", ""},
        {"that full one, looked back on", daily("2026-03-02T09:00:00Z", 5, 60), "UTC",
         "2026-03-11T12:00:00Z", LastWeek, 5, 5.0, 5, 0, "9\u202FAM", "Early Bird", "Build",
         "You showed up 5 of 7 days."},
        {"week in which clocks went forward", daily("2026-03-23T07:00:00Z", 7, 60), "Europe/Berlin",
         "2026-03-31T12:00:00Z", LastWeek, 7, 7.0, 7, 0, "8\u202FAM", "Early Bird", "Build",
         "You showed up every single day last week."},
        {"session over the hour that was lost",
         {worked("2026-03-29T00:30:00Z", 120)},
         "Europe/Berlin",
         "2026-03-29T12:00:00Z",
         Today,
         1,
         2.0,
         1,
         1,
         "",
         "",
         "Build",
         "You hit your daily goal once."},
        {"week in which clocks went back", daily("2026-10-19T07:00:00Z", 7, 60), "Europe/Berlin",
         "2026-10-27T12:00:00Z", LastWeek, 7, 7.0, 7, 0, "9\u202FAM", "Early Bird", "Build",
         "You showed up every single day last week."},
        {"last minute of the day that had 25 hours",
         {worked("2026-10-25T21:59:00Z", 60)},
         "Europe/Berlin",
         "2026-10-25T22:59:30Z",
         Today,
         1,
         1.0,
         1,
         0,
         "",
         "",
         "Build",
         ""},
        {"week over New Year", daily("2025-12-29T09:00:00Z", 7, 150), "UTC", "2026-01-04T20:00:00Z",
         Week, 7, 17.5, 7, 7, "9\u202FAM", "Early Bird", "Build",
         "You hit your daily goal 7 times."},
        {"month over New Year", daily("2025-12-29T09:00:00Z", 7, 150), "UTC",
         "2026-01-04T20:00:00Z", Month, 4, 10.0, 4, 4, "9\u202FAM", "Early Bird", "Build",
         "You hit your daily goal 4 times."},
        {"deleted skills", daily("2026-03-09T13:00:00Z", 5, 60, QStringLiteral("old_thing")), "UTC",
         "2026-03-14T12:00:00Z", Week, 5, 5.0, 5, 0, "1\u202FPM", "Steady Hand", "Old Thing",
         "You showed up 5 of 6 days."},
        {"hand-logged time", byHand(daily("2026-03-09T13:00:00Z", 5, 20)), "UTC",
         "2026-03-13T20:00:00Z", Week, 5, 100.0 / 60.0, 5, 0, "1\u202FPM", "Quick Hitter", "Build",
         "You showed up every single day this week."},
        {"clock that was set back since", daily("2026-03-09T13:00:00Z", 5, 60), "UTC",
         "2026-03-11T12:55:00Z", Week, 3, 3.0, 3, 0, "1\u202FPM", "", "Build",
         "You showed up every single day this week."},
    };
    return table;
}

class RealisticLogs : public testing::TestWithParam<Row> {};

TEST_P(RealisticLogs, AreToldWhatTheyDid) {
    const Row& row = GetParam();
    const auto settings = samples::settingsAt(row.now, QLatin1String(row.zone));
    const auto stats = WrappedStats::compute(row.sessions, row.period, settings);
    const auto top = stats.topSkill();
    EXPECT_EQ(stats.sessionCount, row.sessionCount);
    EXPECT_DOUBLE_EQ(stats.totalHours, row.totalHours);
    EXPECT_EQ(stats.activeDays, row.activeDays);
    EXPECT_EQ(stats.goalHitDays, row.goalHitDays);
    EXPECT_EQ(stats.typicalStart.value_or(QString()).toStdString(), row.typicalStart);
    EXPECT_EQ((stats.persona ? stats.persona->name : QString()).toStdString(), row.persona);
    EXPECT_EQ((top ? top->name : QString()).toStdString(), row.topSkill);
    EXPECT_EQ((stats.superlatives.empty() ? QString() : stats.superlatives[0].text).toStdString(),
              row.firstSuperlative);
    EXPECT_TRUE(stats.manualHours == 0.0 || stats.verifiedHours == 0.0);
}

INSTANTIATE_TEST_SUITE_P(All, RealisticLogs, testing::ValuesIn(rows()));

TEST(Traveller, WorkIsGroupedByTheCurrentTimeZone) {
    // In the evening in New York, which is after midnight in Berlin.
    const auto sessions = daily("2026-03-09T23:30:00Z", 5, 60);
    const auto in = [&](const char* zone) {
        return WrappedStats::compute(
            sessions, WrappedPeriod::Week,
            samples::settingsAt("2026-03-15T12:00:00Z", QLatin1String(zone)));
    };
    const auto newYork = in("America/New_York");
    const auto berlin = in("Europe/Berlin");
    EXPECT_EQ(newYork.workedDays.front().day, at("2026-03-09T04:00:00Z"));
    EXPECT_EQ(berlin.workedDays.front().day, at("2026-03-09T23:00:00Z"));
    EXPECT_EQ(newYork.persona->name, QStringLiteral("After Hours"));
    EXPECT_EQ(berlin.persona->name, QStringLiteral("Night Shift"));
    EXPECT_EQ(newYork.totalHours, berlin.totalHours);
    EXPECT_EQ(newYork.activeDays, berlin.activeDays);
}

TEST(YearBoundary, BothYearsAreActiveTheLatterFirst) {
    const auto stats =
        WrappedStats::compute(daily("2025-12-29T09:00:00Z", 7, 150), WrappedPeriod::Today,
                              samples::settingsAt("2026-01-04T20:00:00Z"));
    EXPECT_EQ(stats.activeYears, (std::vector{2026, 2025}));
}

} // namespace
} // namespace vantle
