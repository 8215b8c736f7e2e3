// The rule alone, over a tracker without a model.
#include "app/PracticeSessions.h"

#include "support/Text.h"
#include "tracking/Settings.h"
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class PracticeSessionsTest : public testing::Test, protected TrackingWorld {
protected:
    void start() { tracker.start(skills.all().front(), 0); }

    PracticeSessions practice{preferences, tracker};
};

TEST_F(PracticeSessionsTest, EverySessionBeforeTheEndOfTheWelcomeIsPractice) {
    EXPECT_FALSE(practice.isOpen()) << "no session is open";
    start();
    EXPECT_TRUE(practice.isOpen());
    practice.finishWelcome();
    EXPECT_FALSE(practice.isOpen());
    EXPECT_FALSE(practice.needsWelcome());
}

TEST_F(PracticeSessionsTest, SessionThatWasMarkedStaysPracticeAfterTheWelcome) {
    practice.markOpenSession();
    start();
    practice.finishWelcome();
    EXPECT_FALSE(practice.isOpen()) << "there was nothing to mark";
    settings::welcomeDone.write(preferences, false);
    practice.markOpenSession();
    practice.finishWelcome();
    EXPECT_TRUE(practice.isOpen());
    practice.noteEnd();
    EXPECT_FALSE(practice.isPractice());
}

TEST_F(PracticeSessionsTest, WorkIsNotMarkedAfterTheWelcome) {
    practice.finishWelcome();
    start();
    practice.markOpenSession();
    EXPECT_FALSE(practice.isOpen());
    practice.noteStart(true);
    EXPECT_TRUE(practice.isOpen()) << "it was started as practice";
}

} // namespace
} // namespace vantle::tests
