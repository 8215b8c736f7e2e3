#include "review/stats/WrappedStats.h"

#include "review/stats/ReviewSamples.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using samples::at;
using samples::settingsAt;
using samples::worked;
using testing::ElementsAre;
using testing::IsEmpty;

const QString kBerlinZone = QStringLiteral("Europe/Berlin");
const QString kDesign = QStringLiteral("product_design");

/// Twelve sessions of ten minutes on Monday and Tuesday of the week of 9 March 2026.
std::vector<Session> aBusyWeek() {
    std::vector<Session> sessions;
    for (const char* day : {"2026-03-09", "2026-03-10"})
        for (const char* hour : {"08", "09", "10", "11", "12", "13"})
            sessions.push_back(worked(std::string(day) + "T" + hour + ":00:00Z", 10));
    return sessions;
}

TEST(WrappedStats, EmptyLogGivesEmptyStats) {
    for (const WrappedPeriod period : wrappedperiod::all) {
        const auto stats = WrappedStats::compute({}, period, settingsAt("2026-03-11T14:00:00Z"));
        EXPECT_EQ(stats.period, period);
        EXPECT_EQ(stats.sessionCount, 0);
        EXPECT_EQ(stats.totalHours, 0.0);
        EXPECT_THAT(stats.skillHours, IsEmpty());
        EXPECT_EQ(stats.longest, std::nullopt);
        EXPECT_FALSE(stats.biggestDay.has_value());
        EXPECT_EQ(stats.typicalStart, std::nullopt);
        EXPECT_EQ(stats.startRhythm, std::nullopt);
        EXPECT_THAT(stats.workedDays, IsEmpty());
        EXPECT_THAT(stats.activeYears, IsEmpty());
        EXPECT_THAT(stats.milestones, IsEmpty());
        EXPECT_EQ(stats.noteDigest, std::nullopt);
        EXPECT_THAT(stats.hourDots, IsEmpty());
        EXPECT_EQ(stats.persona, std::nullopt);
        EXPECT_EQ(stats.personaScope, wrappedperiod::inSentence(period));
        EXPECT_THAT(stats.superlatives, IsEmpty());
        EXPECT_EQ(stats.lastWeekHours, std::nullopt);
        EXPECT_EQ(stats.topSkill(), std::nullopt);
        EXPECT_EQ(stats.closingLine(DurationStyle::Natural),
                  QStringLiteral("0 min across 0 sessions."));
    }
}

TEST(WrappedStats, ThreeStartsMakeARhythm) {
    const std::vector sessions = {worked("2026-03-09T09:00:00Z", 60),
                                  worked("2026-03-10T09:00:00Z", 60),
                                  worked("2026-03-11T09:00:00Z", 60)};
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Week, settingsAt("2026-03-11T14:00:00Z"));
    ASSERT_TRUE(stats.startRhythm);
    EXPECT_EQ(stats.startRhythm->peakHour, 9);
}

TEST(WrappedStats, ASessionAcrossMidnightBelongsToTheDayOfItsEndButStartsBefore) {
    // 23:50 to 00:20 in Berlin, three times over.
    const std::vector sessions(3, worked("2026-03-10T22:50:00Z", 30));
    const auto settings = settingsAt("2026-03-11T14:00:00Z", kBerlinZone);
    const auto stats = WrappedStats::compute(sessions, WrappedPeriod::Today, settings);
    EXPECT_EQ(stats.totalHours, 1.5);
    EXPECT_EQ(stats.typicalStart, QStringLiteral("11\u202FPM"));
    EXPECT_EQ(stats.workedDays.size(), 1u);
    EXPECT_EQ(stats.dayHours(at("2026-03-10T23:00:00Z")), 1.5);
    EXPECT_EQ(stats.dayHours(at("2026-03-09T23:00:00Z")), 0.0);
}

TEST(WrappedStats, FutureStartsCountInThePersonaWindowOnly) {
    const auto now = "2026-03-11T10:00:00Z";
    std::vector<Session> sessions;
    for (const char* start : {"2026-03-11T10:05:01Z", "2026-03-11T10:10:00Z",
                              "2026-03-12T10:00:00Z", "2026-03-12T11:00:00Z"})
        sessions.push_back(worked(start, 60));
    const auto compute = [&](WrappedPeriod period) {
        return WrappedStats::compute(sessions, period, settingsAt(now));
    };
    for (const WrappedPeriod period : wrappedperiod::all)
        EXPECT_EQ(compute(period).sessionCount, 0);
    EXPECT_EQ(compute(WrappedPeriod::Today).personaScope, QStringLiteral("today"));
    sessions.push_back(worked("2026-03-13T10:00:00Z", 60));
    for (const auto period : {WrappedPeriod::Today, WrappedPeriod::Month, WrappedPeriod::AllTime}) {
        EXPECT_EQ(compute(period).sessionCount, 0);
        EXPECT_THAT(compute(period).workedDays, IsEmpty());
        EXPECT_EQ(compute(period).personaSessionCount, 5);
        EXPECT_EQ(compute(period).personaScope, QStringLiteral("this week"));
        EXPECT_TRUE(compute(period).persona.has_value());
    }
    EXPECT_EQ(compute(WrappedPeriod::Week).personaSessionCount, 0);
    // The tolerance for clocks that differ is five minutes.
    sessions.front().startedAt -= Seconds(1);
    EXPECT_EQ(compute(WrappedPeriod::Today).sessionCount, 1);
}

TEST(WrappedStats, MilestonesOfThePeriodCountTheWholeLog) {
    const std::vector sessions = {worked("2026-03-09T00:00:00Z", 9 * 60),
                                  worked("2026-03-10T00:00:00Z", 16 * 60),
                                  worked("2026-03-11T00:00:00Z", 60)};
    const auto hours = [&](WrappedPeriod period, const char* now) {
        std::vector<int> earned;
        for (const auto& badge :
             WrappedStats::compute(sessions, period, settingsAt(now)).milestones)
            earned.push_back(badge.hours);
        return earned;
    };
    EXPECT_THAT(hours(WrappedPeriod::Today, "2026-03-10T20:00:00Z"), ElementsAre(10, 25));
    EXPECT_THAT(hours(WrappedPeriod::Today, "2026-03-11T20:00:00Z"), IsEmpty());
    EXPECT_THAT(hours(WrappedPeriod::AllTime, "2026-03-11T20:00:00Z"), ElementsAre(10, 25));
    EXPECT_THAT(hours(WrappedPeriod::LastWeek, "2026-03-18T20:00:00Z"), ElementsAre(10, 25));
}

TEST(WrappedStats, AnEndAtMidnightOfMondayBelongsToTheNewWeek) {
    const std::vector sessions = {worked("2026-03-08T23:00:00Z", 60)};
    const auto settings = settingsAt("2026-03-11T14:00:00Z");
    EXPECT_EQ(WrappedStats::compute(sessions, WrappedPeriod::Week, settings).sessionCount, 1);
    EXPECT_EQ(WrappedStats::compute(sessions, WrappedPeriod::LastWeek, settings).sessionCount, 0);
}

TEST(WrappedStats, EqualSkillsOfADayGiveTheColourOfTheSmallerId) {
    std::vector sessions = {worked("2026-03-11T08:00:00Z", 30, kDesign),
                            worked("2026-03-11T09:00:00Z", 30)};
    const auto settings = settingsAt("2026-03-11T14:00:00Z");
    const auto color = [&] {
        return WrappedStats::compute(sessions, WrappedPeriod::Today, settings)
            .dayColor(at("2026-03-11T00:00:00Z"));
    };
    EXPECT_EQ(color(), Skill::seedDefinition(QStringLiteral("building"))->hexRGB);
    sessions.front().activeSeconds += 1;
    EXPECT_EQ(color(), Skill::seedDefinition(kDesign)->hexRGB);
}

TEST(WrappedStats, IdsAreComparedByCodePoints) {
    // By UTF-16 units the second would come first.
    const QString inFirstPlane(QChar(0xFB00));
    const QString beyond = QString::fromUcs4(U"\U0001F600");
    const std::vector sessions = {worked("2026-03-11T08:00:00Z", 30, beyond),
                                  worked("2026-03-11T09:00:00Z", 30, inFirstPlane)};
    auto settings = settingsAt("2026-03-11T14:00:00Z");
    settings.skills = {{inFirstPlane, QStringLiteral("A"), 1, false},
                       {beyond, QStringLiteral("B"), 2, false}};
    const auto stats = WrappedStats::compute(sessions, WrappedPeriod::Today, settings);
    EXPECT_EQ(stats.workedDays.at(0).hexRGB, 1u);
    EXPECT_EQ(stats.topSkill()->id, inFirstPlane);
}

TEST(WrappedStats, LaterOfEqualDaysIsBiggestAndFirstOfEqualSessionsLongest) {
    const std::vector sessions = {worked("2026-03-09T08:00:00Z", 30),
                                  worked("2026-03-10T08:00:00Z", 30)};
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Week, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.biggestDay->day, at("2026-03-10T00:00:00Z"));
    EXPECT_EQ(stats.biggestDay->hours, 0.5);
    EXPECT_EQ(stats.longest, sessions.front());
}

TEST(WrappedStats, GoalOfZeroHoursStillNeedsAMinute) {
    auto settings = settingsAt("2026-03-11T14:00:00Z");
    settings.dailyGoalHours = 0;
    std::vector sessions = {worked("2026-03-11T08:00:00Z", 1)};
    const auto days = [&] {
        return WrappedStats::compute(sessions, WrappedPeriod::Today, settings).goalHitDays;
    };
    EXPECT_EQ(days(), 1);
    sessions.front().activeSeconds = 59;
    EXPECT_EQ(days(), 0);
    // An hour and a third is 4800 seconds only when it is rounded.
    settings.dailyGoalHours = 4800.4 / 3600.0;
    sessions.front().activeSeconds = 4800;
    EXPECT_EQ(days(), 1);
    sessions.front().activeSeconds = 4799;
    EXPECT_EQ(days(), 0);
}

TEST(WrappedStats, OnlyWeeksHaveTheHoursOfTheWeekBefore) {
    const std::vector sessions = {worked("2026-03-03T08:00:00Z", 90),
                                  worked("2026-03-10T08:00:00Z", 30)};
    const auto settings = settingsAt("2026-03-11T14:00:00Z");
    const auto before = [&](WrappedPeriod period) {
        return WrappedStats::compute(sessions, period, settings).lastWeekHours;
    };
    EXPECT_EQ(before(WrappedPeriod::Week), 1.5);
    EXPECT_EQ(before(WrappedPeriod::LastWeek), std::nullopt);
    EXPECT_EQ(before(WrappedPeriod::Month), std::nullopt);
    EXPECT_EQ(before(WrappedPeriod::Today), std::nullopt);
}

TEST(WrappedStats, DayOfOneSecondIsActive) {
    Session second = worked("2026-03-10T08:00:00Z", 1);
    second.activeSeconds = 1;
    const auto stats =
        WrappedStats::compute({second}, WrappedPeriod::Week, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.activeDays, 1);
}

TEST(WrappedStats, SuperlativesTellTheLongestSessionAndThePassedHours) {
    const std::vector sessions = {worked("2026-03-09T08:00:00Z", 120),
                                  worked("2026-03-10T08:00:00Z", 500)};
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Week, settingsAt("2026-03-13T14:00:00Z"));
    QStringList lines;
    for (const SuperlativeLine& line : stats.superlatives)
        lines << line.text;
    EXPECT_EQ(lines.filter(QStringLiteral("Longest session: ")).size(), 1);
    EXPECT_EQ(lines.filter(QStringLiteral("10 hour mark")).size(), 1);
}

TEST(WrappedStats, NotesAreDigested) {
    Session noted = worked("2026-03-10T08:00:00Z", 60);
    noted.note = QStringLiteral("Wrote the parser");
    const auto stats =
        WrappedStats::compute({noted}, WrappedPeriod::Week, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_TRUE(stats.noteDigest.has_value());
}

TEST(WrappedStats, RankNeedsTwoEarlierWeeks) {
    std::vector sessions = {worked("2026-03-03T08:00:00Z", 30), worked("2026-03-10T08:00:00Z", 60)};
    const auto bestLine = [&] {
        const auto lines =
            WrappedStats::compute(sessions, WrappedPeriod::Week, settingsAt("2026-03-11T14:00:00Z"))
                .superlatives;
        return lines.empty() ? QString() : lines.front().text;
    };
    EXPECT_EQ(bestLine(), QString());
    sessions.insert(sessions.begin(), worked("2026-02-24T08:00:00Z", 60));
    EXPECT_EQ(bestLine(), QStringLiteral("Your best week yet.")); // as good as one before
    sessions.front().activeSeconds += 1;
    EXPECT_EQ(bestLine(), QStringLiteral("Your 2nd best week."));
    sessions.insert(sessions.begin(), worked("2026-02-17T08:00:00Z", 61));
    EXPECT_EQ(bestLine(), QStringLiteral("Your 3rd best week."));
    sessions.insert(sessions.begin(), worked("2026-02-10T08:00:00Z", 61));
    EXPECT_EQ(bestLine(), QString());
}

TEST(WrappedStats, PersonaOfADayUsesItsWeek) {
    const auto sessions = aBusyWeek();
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Today, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.sessionCount, 0);
    EXPECT_EQ(stats.personaScope, QStringLiteral("this week"));
    EXPECT_EQ(stats.personaSessionCount, 12);
    EXPECT_TRUE(stats.persona.has_value());
}

TEST(WrappedStats, PersonaOfAYoungWeekUsesTheWeekBefore) {
    auto sessions = aBusyWeek();
    for (const char* start : {"2026-03-16T08:00:00Z", "2026-03-16T09:00:00Z",
                              "2026-03-16T10:00:00Z", "2026-03-16T11:00:00Z"})
        sessions.push_back(worked(start, 10));
    const auto scope = [&](WrappedPeriod period, const char* now) {
        return WrappedStats::compute(sessions, period, settingsAt(now)).personaScope;
    };
    EXPECT_EQ(scope(WrappedPeriod::Month, "2026-03-16T12:00:00Z"), QStringLiteral("last week"));
    EXPECT_EQ(scope(WrappedPeriod::Month, "2026-03-30T12:00:00Z"), QStringLiteral("this month"));
    EXPECT_EQ(scope(WrappedPeriod::AllTime, "2026-03-30T12:00:00Z"), QStringLiteral("all time"));
    EXPECT_EQ(scope(WrappedPeriod::Week, "2026-03-16T12:00:00Z"), QStringLiteral("this week"));
    EXPECT_EQ(scope(WrappedPeriod::LastWeek, "2026-03-16T12:00:00Z"), QStringLiteral("last week"));
    sessions.push_back(worked("2026-03-16T12:00:00Z", 10));
    EXPECT_EQ(scope(WrappedPeriod::Month, "2026-03-16T13:00:00Z"), QStringLiteral("this week"));
}

TEST(WrappedStats, PersonaNeedsTwoDays) {
    auto sessions = aBusyWeek();
    sessions.resize(6); // all of Monday
    const auto persona = [&] {
        return WrappedStats::compute(sessions, WrappedPeriod::Week,
                                     settingsAt("2026-03-11T14:00:00Z"))
            .persona;
    };
    EXPECT_EQ(persona(), std::nullopt);
    sessions.back() = worked("2026-03-10T08:00:00Z", 10);
    EXPECT_TRUE(persona().has_value());
    sessions.erase(sessions.begin(), sessions.begin() + 2);
    EXPECT_EQ(persona(), std::nullopt);
}

TEST(WrappedStats, ADayOfNoSecondsIsListedButNotActive) {
    const std::vector sessions = {worked("2026-03-11T08:00:00Z", 0, kDesign),
                                  worked("2026-03-11T08:10:00Z", 0)};
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::AllTime, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.sessionCount, 2);
    EXPECT_EQ(stats.activeDays, 0);
    EXPECT_THAT(stats.activeYears, IsEmpty());
    EXPECT_THAT(stats.skillHours, IsEmpty());
    EXPECT_EQ(stats.biggestDay->hours, 0.0);
    ASSERT_EQ(stats.workedDays.size(), 1u);
    EXPECT_EQ(stats.workedDays[0].hexRGB,
              Skill::seedDefinition(QStringLiteral("building"))->hexRGB);
}

TEST(WrappedStats, BlankNoteCountsAsANote) {
    std::vector sessions = {worked("2026-03-11T08:00:00Z", 10)};
    sessions.front().note = QStringLiteral("  ");
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Today, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.notedSessionCount, 1);
    EXPECT_EQ(stats.noteDigest, std::nullopt);
}

TEST(WrappedStats, ClosesWithOneSentence) {
    std::vector sessions = {worked("2026-03-11T08:00:00Z", 90, kDesign)};
    const auto line = [&](DurationStyle style) {
        return WrappedStats::compute(sessions, WrappedPeriod::Today,
                                     settingsAt("2026-03-11T14:00:00Z"))
            .closingLine(style);
    };
    EXPECT_EQ(line(DurationStyle::Natural),
              QStringLiteral("1.5 h across one session, led by Design."));
    sessions.push_back(worked("2026-03-11T10:00:00Z", 30));
    EXPECT_EQ(line(DurationStyle::Clock),
              QStringLiteral("2:00:00 across 2 sessions, led by Design."));
}

TEST(WrappedStats, AnySourceButManualIsTracked) {
    std::vector sessions = {worked("2026-03-11T08:00:00Z", 30), worked("2026-03-11T09:00:00Z", 60),
                            worked("2026-03-11T10:00:00Z", 90)};
    sessions[1].source = sourceManual();
    sessions[2].source = QStringLiteral("elsewhere");
    const auto stats =
        WrappedStats::compute(sessions, WrappedPeriod::Today, settingsAt("2026-03-11T14:00:00Z"));
    EXPECT_EQ(stats.verifiedHours, 2.0);
    EXPECT_EQ(stats.manualHours, 1.0);
}

} // namespace
} // namespace vantle
