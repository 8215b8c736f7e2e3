#include "review/stats/StartRhythm.h"

#include "review/stats/ReviewSamples.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;

/// One start per time of day in UTC, as in "0730".
class Starts {
public:
    explicit Starts(const std::vector<const char*>& times) {
        LocalTime local(samples::calendarIn(QStringLiteral("UTC")));
        for (const std::string time : times)
            m_times.add(local.at(
                samples::at("2026-03-10T" + time.substr(0, 2) + ":" + time.substr(2) + ":00Z")));
    }

    [[nodiscard]] const StartTimes& times() const { return m_times; }
    [[nodiscard]] std::optional<StartRhythm> rhythm() const {
        return StartRhythm::compute(m_times);
    }
    [[nodiscard]] std::optional<QString> typical(const char* locale = "en_US") const {
        return m_times.typicalStart(QLatin1String(locale));
    }

private:
    StartTimes m_times;
};

TEST(StartRhythm, TwoSessionsGiveNoRhythm) {
    const Starts two({"0700", "0800"});
    EXPECT_EQ(two.typical(), std::nullopt);
    EXPECT_EQ(two.rhythm(), std::nullopt);
    EXPECT_EQ(Starts({}).rhythm(), std::nullopt);
}

TEST(StartRhythm, EvenCountTakesTheLaterOfTheTwoMiddleStarts) {
    EXPECT_EQ(Starts({"2000", "0900", "0800", "0700"}).times().medianMinutes(), 9 * 60);
    EXPECT_EQ(Starts({"0700", "0800", "0930"}).times().medianMinutes(), 8 * 60);
}

TEST(StartRhythm, MidnightIsTheFirstMinute) {
    EXPECT_EQ(Starts({"0000", "0000", "0001"}).times().medianMinutes(), 0);
}

TEST(StartRhythm, TypicalStartIsTheHourAlone) {
    // ICU writes a narrow blank before the mark.
    EXPECT_EQ(Starts({"0859", "0859", "0859"}).typical(), QStringLiteral("8\u202FAM"));
}

TEST(StartRhythm, TypicalStartIsInTheLocalesForm) {
    const Starts afternoon({"1510", "1510", "1510"});
    EXPECT_EQ(afternoon.typical("en_GB"), QStringLiteral("15"));
    EXPECT_EQ(afternoon.typical("de_DE"), QStringLiteral("15 Uhr"));
    EXPECT_EQ(afternoon.typical("ja_JP"), QStringLiteral("15時"));
    EXPECT_EQ(afternoon.typical("ar_EG"), QStringLiteral("٣ م"));
}

TEST(StartRhythm, CountsInPairsOfHours) {
    const auto rhythm = Starts({"0000", "0159", "0200", "2359", "2200"}).rhythm();
    EXPECT_THAT(rhythm->counts, ElementsAre(2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2));
}

TEST(StartRhythm, FirstOfEqualHoursIsThePeak) {
    EXPECT_EQ(Starts({"2100", "2130", "0700", "0710", "1200"}).rhythm()->peakHour, 7);
}

TEST(StartRhythm, EarlierOfEqualBandsGivesTheHeadline) {
    const auto rhythm = Starts({"1900", "2000", "2100", "0700", "0800", "0900"}).rhythm();
    EXPECT_EQ(rhythm->headline, QStringLiteral("Most sessions started before noon."));
    EXPECT_EQ(rhythm->detail, QStringLiteral("3 of 6 sessions started before noon."));
}

TEST(StartRhythm, EachBandHasItsHeadline) {
    const auto afternoon = Starts({"1200", "1759", "1500"}).rhythm();
    EXPECT_EQ(afternoon->headline, QStringLiteral("Most sessions started in the afternoon."));
    EXPECT_EQ(afternoon->detail, QStringLiteral("3 of 3 sessions started between noon and 6 PM."));
    const auto evening = Starts({"1800", "2259", "2000"}).rhythm();
    EXPECT_EQ(evening->headline, QStringLiteral("Most sessions started after dark."));
    EXPECT_EQ(evening->detail, QStringLiteral("3 of 3 sessions started after 6 PM."));
}

TEST(StartRhythm, EachHourBelongsToOneBand) {
    const auto bandOf = [](int hour) {
        if (hour >= 5 && hour <= 11) return "Most sessions started before noon.";
        if (hour >= 12 && hour <= 17) return "Most sessions started in the afternoon.";
        if (hour >= 18 && hour <= 22) return "Most sessions started after dark.";
        return "Most sessions started late at night.";
    };
    for (int hour = 0; hour < 24; ++hour) {
        const std::string time = (hour < 10 ? "0" : "") + std::to_string(hour) + "30";
        const auto rhythm = Starts({time.c_str(), time.c_str(), time.c_str()}).rhythm();
        EXPECT_EQ(rhythm->headline, QLatin1String(bandOf(hour))) << hour;
        EXPECT_TRUE(rhythm->detail->startsWith(QStringLiteral("3 of 3 "))) << hour;
    }
}

TEST(StartRhythm, NightDetailIncludesTheHourFromTen) {
    const auto rhythm = Starts({"2210", "2300", "0100", "0459", "1000"}).rhythm();
    EXPECT_EQ(rhythm->headline, QStringLiteral("Most sessions started late at night."));
    EXPECT_EQ(rhythm->detail, QStringLiteral("4 of 5 sessions started after 10 PM."));
}

TEST(StartRhythm, StartsWithoutADominantBandAreSpread) {
    // 9 of 20 are just enough, 4 of 9 are not.
    std::vector<const char*> times(9, "0700");
    times.insert(times.end(), 8, "1300");
    times.insert(times.end(), 3, "1900");
    EXPECT_TRUE(Starts(times).rhythm()->detail.has_value());
    const auto spread =
        Starts({"0700", "0700", "0700", "0700", "1300", "1300", "1300", "1900", "1900"}).rhythm();
    EXPECT_EQ(spread->headline, QStringLiteral("Your starts are spread across the whole day."));
    EXPECT_EQ(spread->detail, std::nullopt);
}

TEST(StartRhythm, UsesTheWallClockAcrossAClockChange) {
    // 02:30 in Berlin, twice: the night on which clocks went back.
    LocalTime berlin(samples::calendarIn(QStringLiteral("Europe/Berlin")));
    StartTimes times;
    for (const char* const start :
         {"2026-10-25T00:30:00Z", "2026-10-25T01:30:00Z", "2026-10-25T00:30:00Z"})
        times.add(berlin.at(samples::at(start)));
    EXPECT_EQ(times.perHour()[2], 3);
}

} // namespace
} // namespace vantle
