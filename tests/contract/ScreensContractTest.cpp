// What everything that tells of screens promises.
#include "contract/Contract.h"
#include "fakes/FakeScreens.h"
#include "platform/desktop/QtScreens.h"
#include "support/Await.h"

namespace vantle {
namespace {

/// A desk of 1440 x 900 pixels, as one screen or as two halves side by side.
class ScreensWorld {
public:
    virtual ~ScreensWorld() = default;
    [[nodiscard]] virtual Screens& screens() = 0;
    /// Plugs the right half in, beside the left one, or pulls it out.
    virtual void plugIn() = 0;
    virtual void pullOut() = 0;
};

constexpr QRectF kLeft(0, 0, 800, 900);
constexpr QRectF kRight(800, 0, 640, 900);

class FakeWorld final : public ScreensWorld {
public:
    FakeWorld() { m_screens.shapes = {{.frame = kLeft, .available = kLeft}}; }
    [[nodiscard]] Screens& screens() override { return m_screens; }
    void plugIn() override {
        m_screens.arrange(
            {{.frame = kLeft, .available = kLeft}, {.frame = kRight, .available = kRight}});
    }
    void pullOut() override { m_screens.arrange({{.frame = kLeft, .available = kLeft}}); }

private:
    fakes::FakeScreens m_screens;
};

/// The screens of the test's own X server, which the monitors of RandR divide.
class QtWorld final : public ScreensWorld {
public:
    QtWorld() {
        EXPECT_TRUE(
            tests::run(QStringLiteral("xrandr --setmonitor left 800/210x900/238+0+0 screen")));
        EXPECT_TRUE(tests::await([this] { return m_screens.all().front().frame == kLeft; }));
    }
    ~QtWorld() override {
        pullOut();
        (void)tests::run(QStringLiteral("xrandr --delmonitor left"));
        tests::runFor(100);
    }
    QtWorld(const QtWorld&) = delete;
    QtWorld& operator=(const QtWorld&) = delete;
    [[nodiscard]] Screens& screens() override { return m_screens; }
    void plugIn() override {
        m_isPluggedIn =
            tests::run(QStringLiteral("xrandr --setmonitor right 640/169x900/238+800+0 none"));
        EXPECT_TRUE(m_isPluggedIn);
    }
    void pullOut() override {
        if (!std::exchange(m_isPluggedIn, false)) return;
        EXPECT_TRUE(tests::run(QStringLiteral("xrandr --delmonitor right")));
    }

private:
    QtScreens m_screens;
    bool m_isPluggedIn = false;
};

class ScreensContract : public contract::Contract<ScreensWorld> {
protected:
    ScreensContract() {
        QObject::connect(&world().screens(), &Screens::changed, &m_listener, [this] {
            ++m_changes;
            m_countAtChange = world().screens().all().size();
        });
    }
    [[nodiscard]] bool awaitCount(std::size_t count) {
        return tests::await(
            [=, this] { return world().screens().all().size() == count && m_changes > 0; });
    }

    QObject m_listener; ///< goes before the world, whose end changes the screens once more
    int m_changes = 0;
    std::size_t m_countAtChange = 0; ///< screens that a listener saw at the last change
};

INSTANTIATE_TEST_SUITE_P(, ScreensContract,
                         testing::Values(contract::maker<ScreensWorld, FakeWorld>("Fake"),
                                         contract::maker<ScreensWorld, QtWorld>("Qt")),
                         contract::kByName);

TEST_P(ScreensContract, TellsTheShapeOfEachScreen) {
    const auto all = world().screens().all();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all.front().frame, kLeft);
    EXPECT_TRUE(all.front().frame.contains(all.front().available));
    EXPECT_EQ(all.front().safeAreaTop, 0);
    EXPECT_EQ(m_changes, 0) << "nothing changed";
}

TEST_P(ScreensContract, TellsOfAScreenThatCameAndTheMainOneStaysFirst) {
    world().plugIn();
    ASSERT_TRUE(awaitCount(2));
    EXPECT_EQ(world().screens().all()[0].frame, kLeft);
    EXPECT_EQ(world().screens().all()[1].frame, kRight);
    EXPECT_EQ(m_countAtChange, 2U);
}

TEST_P(ScreensContract, TellsOfAScreenThatWent) {
    world().plugIn();
    ASSERT_TRUE(awaitCount(2));
    m_changes = 0;
    world().pullOut();
    ASSERT_TRUE(awaitCount(1));
    EXPECT_EQ(world().screens().all()[0].frame, kLeft);
    EXPECT_EQ(m_countAtChange, 1U) << "who listens finds it gone";
}

} // namespace
} // namespace vantle
