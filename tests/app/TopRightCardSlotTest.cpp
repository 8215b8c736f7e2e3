#include "app/TopRightCardSlot.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantle {
namespace {

using Kind = TopRightCardSlot::Kind;

class TopRightCardSlotTest : public testing::Test {
protected:
    bool request(const int& owner, Kind kind, const std::string& name) {
        return slot.request(
            &owner, kind, [this, name] { events.push_back("evict " + name); },
            [this, name] { events.push_back("show " + name); });
    }

    TopRightCardSlot slot;
    std::vector<std::string> events;
    int a = 0;
    int b = 0;
    int c = 0;
};

TEST_F(TopRightCardSlotTest, APromptIsRefusedWhileAnotherPromptIsUpAndDoesNotWait) {
    EXPECT_TRUE(request(a, Kind::Prompt, "a"));
    EXPECT_FALSE(request(b, Kind::Prompt, "b"));
    EXPECT_FALSE(slot.hasQueued());
}

TEST_F(TopRightCardSlotTest, ReleasedCornerIsFree) {
    request(a, Kind::Prompt, "a");
    slot.release(&a);
    EXPECT_TRUE(request(b, Kind::Prompt, "b"));
    EXPECT_TRUE(events.empty());
}

TEST_F(TopRightCardSlotTest, EvictedCardThatLeavesTheCornerDoesNotComeBackAtOnce) {
    slot.request(
        &a, Kind::Recovery, [this] { slot.release(&a); },
        [this] { events.emplace_back("show a"); });
    slot.takeForSummary(&b, [] {});
    EXPECT_TRUE(events.empty());
    slot.release(&b);
    EXPECT_EQ(events, std::vector<std::string>{"show a"});
}

TEST_F(TopRightCardSlotTest, ARecoveryEvictsAPromptThatDoesNotReturn) {
    request(a, Kind::Prompt, "a");
    EXPECT_TRUE(request(b, Kind::Recovery, "b"));
    slot.release(&b);
    EXPECT_EQ(events, std::vector<std::string>{"evict a"});
}

TEST_F(TopRightCardSlotTest, ARecoveryWaitsForTheSummaryToClose) {
    slot.takeForSummary(&a, [] {});
    EXPECT_FALSE(request(b, Kind::Recovery, "b"));
    slot.release(&a);
    EXPECT_EQ(events, std::vector<std::string>{"show b"});
}

TEST_F(TopRightCardSlotTest, OfTwoRefusedRecoveriesTheSecondWaits) {
    slot.takeForSummary(&a, [] {});
    request(b, Kind::Recovery, "b");
    request(c, Kind::Recovery, "c");
    slot.release(&a);
    EXPECT_EQ(events, std::vector<std::string>{"show c"});
}

TEST_F(TopRightCardSlotTest, AReleaseByAnotherLeavesTheQueueAlone) {
    slot.takeForSummary(&a, [] {});
    request(b, Kind::Recovery, "b");
    slot.release(&c);
    EXPECT_TRUE(slot.hasQueued());
    EXPECT_TRUE(events.empty());
}

TEST_F(TopRightCardSlotTest, TheHolderMayChangeItsKindWithoutBeingEvicted) {
    request(a, Kind::Recovery, "a");
    EXPECT_TRUE(request(a, Kind::Prompt, "a"));
    EXPECT_EQ(slot.holder()->kind, Kind::Prompt);
    EXPECT_TRUE(events.empty());
}

TEST_F(TopRightCardSlotTest, ASummaryEvictsNoSummary) {
    for (const int* owner : {&a, &a, &b})
        slot.takeForSummary(owner, [this] { events.emplace_back("evicted"); });
    EXPECT_TRUE(events.empty());
}

TEST_F(TopRightCardSlotTest, ASummaryPushesARecoveryOutAndLetsItReturn) {
    request(a, Kind::Recovery, "a");
    slot.takeForSummary(&b, [] {});
    slot.release(&b);
    EXPECT_EQ(events, (std::vector<std::string>{"evict a", "show a"}));
}

} // namespace
} // namespace vantle
