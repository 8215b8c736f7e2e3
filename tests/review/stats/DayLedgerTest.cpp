#include "review/stats/DayLedger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace vantle {
namespace {

std::map<std::size_t, std::int64_t> sharesOf(const DayLedger& ledger, std::size_t entry) {
    std::map<std::size_t, std::int64_t> seconds;
    for (const DayLedger::Share& share : ledger.shares(ledger.entries().at(entry)))
        EXPECT_TRUE(seconds.emplace(share.skill, share.seconds).second);
    return seconds;
}

TEST(DayLedger, OfNothingHasNoDays) {
    DayLedger ledger;
    ledger.close();
    EXPECT_TRUE(ledger.entries().empty());
    EXPECT_TRUE(ledger.secondsPerSkill().empty());
}

TEST(DayLedger, SumsADayPerSkill) {
    DayLedger ledger;
    for (const std::size_t skill : {0u, 1u, 0u, 0u, 2u, 1u})
        ledger.add(5, skill, 10);
    ledger.close();
    ASSERT_EQ(ledger.entries().size(), 1u);
    EXPECT_EQ(ledger.entries()[0].seconds, 60);
    EXPECT_EQ(sharesOf(ledger, 0),
              (std::map<std::size_t, std::int64_t>{{0, 30}, {1, 20}, {2, 10}}));
}

TEST(DayLedger, MergesADayThatComesBack) {
    DayLedger ledger;
    ledger.add(-1, 0, 1);
    ledger.add(0, 1, 2);
    ledger.add(-1, 1, 4);
    ledger.add(3, 0, 8);
    ledger.add(0, 1, 16);
    ledger.close();
    ASSERT_EQ(ledger.entries().size(), 3u);
    EXPECT_TRUE(std::ranges::is_sorted(ledger.entries(), {}, &DayLedger::Entry::day));
    EXPECT_EQ(sharesOf(ledger, 0), (std::map<std::size_t, std::int64_t>{{0, 1}, {1, 4}}));
    EXPECT_EQ(sharesOf(ledger, 1), (std::map<std::size_t, std::int64_t>{{1, 18}}));
    EXPECT_EQ(ledger.secondsPerSkill(), (std::vector<std::int64_t>{9, 22}));
}

TEST(DayLedger, KeepsADayWithoutSeconds) {
    DayLedger ledger;
    ledger.add(7, 3, 0);
    ledger.close();
    ASSERT_EQ(ledger.entries().size(), 1u);
    EXPECT_EQ(sharesOf(ledger, 0), (std::map<std::size_t, std::int64_t>{{3, 0}}));
}

} // namespace
} // namespace vantle
