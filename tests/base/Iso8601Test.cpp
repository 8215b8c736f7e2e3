#include "base/Iso8601.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vantle {
namespace {

std::string formatted(double epoch) {
    const auto text = iso8601::format(dateFromEpoch(epoch));
    return text ? std::string(text->data(), text->size()) : "none";
}

TEST(Iso8601, WritesWholeSecondsInUtc) {
    EXPECT_EQ(formatted(1772357405.0), "2026-03-01T09:30:05Z");
}

TEST(Iso8601, DropsAFractionTowardThePast) {
    EXPECT_EQ(formatted(1772357405.999), "2026-03-01T09:30:05Z");
    EXPECT_EQ(formatted(-0.25), "1969-12-31T23:59:59Z");
}

TEST(Iso8601, HasNoTextForInvalidDates) {
    EXPECT_EQ(formatted(std::numeric_limits<double>::quiet_NaN()), "none");
    EXPECT_EQ(formatted(std::numeric_limits<double>::infinity()), "none");
    EXPECT_EQ(formatted(253402300800.0), "none");
    EXPECT_EQ(formatted(253402300799.5), "9999-12-31T23:59:59Z");
    EXPECT_EQ(formatted(-62135596800.0), "0001-01-01T00:00:00Z");
    EXPECT_EQ(formatted(-62135596801.0), "none");
}

TEST(Iso8601, ReadsWhatItWrites) {
    for (double epoch : {-62135596800.0, -1.0, 0.0, 951782400.0, 1772357405.0, 253402300799.0})
        EXPECT_EQ(iso8601::parse(formatted(epoch)), dateFromEpoch(epoch)) << epoch;
}

TEST(Iso8601, RefusesEveryOtherForm) {
    for (const char* text :
         {"2026-03-01T09:30:05.250Z", "2026-03-01T09:30:05z", "2026-03-01t09:30:05Z",
          "2026-03-01T09:30:05+00:00", "2026-02-30T09:30:05Z", "2026-02-29T00:00:00Z",
          "2026-13-01T09:30:05Z", "2026-00-01T09:30:05Z", "2026-03-00T09:30:05Z",
          "0000-03-01T09:30:05Z", "2026-03-01T24:00:00Z", "2026-03-01T09:60:05Z",
          "2026-03-01T09:30:60Z", "2026-03-01 09:30:05Z", "+026-03-01T09:30:05Z",
          " 026-03-01T09:30:05Z", "2026-03-01T09:30:05", "", "2026-3-1T9:30:5Z"})
        EXPECT_FALSE(iso8601::parse(text)) << text;
}

TEST(Iso8601, RefusesOtherMarksAndWhatIsNoDigit) {
    for (const char* text : {"2026/03-01T09:30:05Z", "2026-03/01T09:30:05Z", "2026-03-01T09.30:05Z",
                             "2026-03-01T09:30.05Z", "2026-03-01T-9:30:05Z", "2026-03-01T09:3x:05Z",
                             "2026-03-01T09:30: 5Z"})
        EXPECT_FALSE(iso8601::parse(text)) << text;
}

TEST(Iso8601, ParserReadsEachDateOfARunLikeTheFirst) {
    iso8601::Parser parser;
    for (const char* text : {"2026-03-01T09:30:05Z", "2026-03-01T23:59:59Z", "2026-02-30T09:30:05Z",
                             "2026-03-01T00:00:00Z", "2026-03-02T00:00:00Z"})
        EXPECT_EQ(parser.parse(text), iso8601::parse(text)) << text;
}

} // namespace
} // namespace vantle
