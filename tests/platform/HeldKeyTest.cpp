#include "platform/HeldKey.h"

#include "fakes/VirtualTime.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class HeldKeyTest : public testing::Test {
protected:
    /// How many of them are new.
    int press(int times) {
        int presses = 0;
        for (int i = 0; i < times; ++i) {
            presses += m_key.pressed() ? 1 : 0;
            m_time.advance(0.04);
        }
        return presses;
    }

    fakes::VirtualTime m_time;
    HeldKey m_key{m_time};
};

TEST_F(HeldKeyTest, EachReleaseMakesTheNextPressANewOne) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(press(50), 1);
        m_key.released();
    }
}

TEST_F(HeldKeyTest, LongPauseBeforeTheRepeatsMakesNoNewPress) {
    EXPECT_EQ(press(1), 1);
    m_key.released();
    EXPECT_EQ(press(1), 1);
    m_time.advance(2.0);
    EXPECT_EQ(press(10), 0);
}

TEST_F(HeldKeyTest, ServiceThatTellsNoReleasesIsHeardAfterASecond) {
    EXPECT_EQ(press(50), 1);
    m_time.advance(1.1);
    EXPECT_EQ(press(50), 1);
}

TEST_F(HeldKeyTest, ReleaseThatWasMissedCostsNothingAfterANewBeginning) {
    EXPECT_EQ(press(1), 1);
    m_key.released();
    EXPECT_EQ(press(1), 1);
    m_key.forget();
    EXPECT_EQ(press(1), 1);
}

} // namespace
} // namespace vantle
