// What everything that tells of screens promises.
#include "contract/Contract.h"
#include "fakes/FakeScreens.h"
#include "platform/ReservedStrips.h"
#include "platform/session/QtScreens.h"
#include "support/Await.h"

#include <QCursor>

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
    virtual void movePointer(QPoint place) = 0;
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
    void movePointer(QPoint place) override { m_screens.inUse = kRight.contains(place) ? 1 : 0; }

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

    void movePointer(QPoint place) override { QCursor::setPos(place); }

private:
    ReservedStrips m_noStrips;
    QtScreens m_screens{m_noStrips};
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

TEST_P(ScreensContract, ScreenWithThePointerIsTheOneInUse) {
    world().plugIn();
    ASSERT_TRUE(awaitCount(2));
    world().movePointer({1200, 300});
    EXPECT_EQ(world().screens().inUseFirst()[0].frame, kRight);
    EXPECT_EQ(world().screens().inUseFirst()[1].frame, kLeft);
    EXPECT_EQ(world().screens().all()[0].frame, kLeft) << "the main one is the main one";
    world().movePointer({300, 300});
    EXPECT_EQ(world().screens().inUseFirst()[0].frame, kLeft);
    world().movePointer({1200, 300});
    world().pullOut();
    EXPECT_TRUE(tests::await([this] {
        const auto screens = world().screens().inUseFirst();
        return screens.size() == 1 && screens[0].frame == kLeft;
    }));
}

/// Bars as the test sets them up.
class SetStrips final : public ReservedStrips {
public:
    [[nodiscard]] std::vector<ReservedStrip> all() override { return strips; }
    std::vector<ReservedStrip> strips;
};

TEST(QtScreens, StripsAreTakenOffTheScreensThatTheyLieOn) {
    QtWorld world;
    world.plugIn();
    SetStrips bars;
    const QtScreens screens(bars);
    ASSERT_TRUE(tests::await([&] { return screens.all().size() == 2; }));
    const auto free = [&](std::size_t screen) { return screens.all()[screen].available; };
    bars.strips = {{Qt::TopEdge, {0, 0, 800, 30}}};
    EXPECT_EQ(free(0), QRectF(0, 30, 800, 870));
    EXPECT_EQ(free(1), kRight);
    bars.strips = {{Qt::BottomEdge, {800, 860, 640, 40}}, {Qt::RightEdge, {1400, 0, 40, 900}}};
    EXPECT_EQ(free(0), kLeft);
    EXPECT_EQ(free(1), QRectF(800, 0, 600, 860));
}

TEST(QtScreens, StripOfABarBetweenTwoScreensLeavesTheOuterOneWhole) {
    QtWorld world;
    world.plugIn();
    SetStrips bars;
    const QtScreens screens(bars);
    ASSERT_TRUE(tests::await([&] { return screens.all().size() == 2; }));
    bars.strips = {{Qt::RightEdge, {760, 0, 680, 900}}}; // of a bar at the left screen's right edge
    EXPECT_EQ(screens.all()[0].available, QRectF(0, 0, 760, 900));
    EXPECT_EQ(screens.all()[1].available, kRight);
}

TEST(QtScreens, BarThatComesOrGoesIsAChange) {
    SetStrips bars;
    const QtScreens screens(bars);
    int changes = 0;
    QObject::connect(&screens, &Screens::changed, [&] { ++changes; });
    Q_EMIT bars.changed();
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace vantle
