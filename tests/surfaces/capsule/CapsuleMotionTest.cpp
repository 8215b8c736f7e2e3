// How the capsule moves, as it is seen: pictures of its window, frame by frame.
#include "CapsuleWorld.h"
#include "fakes/FakePanelHost.h"
#include "support/ShownItems.h"
#include "support/SteppedAnimations.h"
#include "support/Text.h"
#include "surfaces/capsule/CapsuleWindow.h"
#include "surfaces/kit/tokens/Motion.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace vantle::tests {
namespace {

constexpr int kOpened = 900; // ms, in which the spring has come to rest
constexpr int kFrame = 10;   // ms between two pictures

class CapsuleMotionTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        engine = new QQmlEngine;
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
    static void TearDownTestSuite() { delete std::exchange(engine, nullptr); }

    CapsuleMotionTest() { Motion::of(*engine)->setReduced(false); }
    ~CapsuleMotionTest() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void raise(NotchCapsule::Form form) {
        auto capsule = std::make_unique<NotchCapsule>(world.environment(), std::move(form),
                                                      world.screens.shapes.front());
        const Placement place =
            capsule::placement(capsule->metrics(), world.screens.shapes.front());
        window = std::make_unique<CapsuleWindow>(
            CapsuleWindow::Environment{
                world.tracking.time, host,
                [] { return std::shared_ptr<QQmlEngine>(engine, [](QQmlEngine*) {}); }},
            std::move(capsule), place);
        window->prepare();
        window->panel().setColor(Qt::green); // what lies below; the capsule has no green
        animations.pass(50);
    }
    void raiseRunning() {
        ASSERT_TRUE(world.tracking.tracker.start(world.skills[0], 0));
        world.tracking.time.settle();
        raise(world.runningForm());
    }
    void raiseOpen(NotchCapsule::Form form) {
        raise(std::move(form));
        window->capsule().expand();
        animations.pass(kOpened);
    }
    [[nodiscard]] QRect openFrame() const { return window->capsule().openFrame().toRect(); }

    [[nodiscard]] QImage picture() const { return window->panel().grabWindow(); }

    /// How wide the black shape is at the top edge.
    [[nodiscard]] int width() const { return widthOf(picture()); }
    static int widthOf(const QImage& image) {
        int count = 0;
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, 0).green() < 60) ++count;
        return count;
    }
    /// The brightest pixel of the row that the capsule shows; neither it nor what is below is red.
    [[nodiscard]] int brightness() const {
        const QImage image = picture();
        const QRect row(openFrame().x() + 10, 4, openFrame().width() - 20, 50);
        int most = 0;
        for (int y = row.top(); y <= row.bottom(); ++y)
            for (int x = row.left(); x <= row.right(); ++x)
                most = std::max(most, qRed(image.pixel(x, y)));
        return most;
    }
    /// The middle of the dot.
    [[nodiscard]] int dot() const {
        return qGray(picture().pixel(openFrame().x() + 18 + 3, 15 + 3));
    }
    /// What is measured at each of the frames of that time.
    template <typename Measure>
    std::vector<int> over(int milliseconds, const Measure& measure) {
        std::vector<int> values;
        for (int t = 0; t < milliseconds; t += kFrame) {
            animations.pass(kFrame);
            values.push_back(measure());
        }
        return values;
    }
    static int spread(const std::vector<int>& values) {
        const auto [least, most] = std::ranges::minmax(values);
        return most - least;
    }

    void mouse(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held) {
        sendMouse(window->panel(), type, place, button, held);
    }
    void click(QPointF place) {
        mouse(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
        mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    }

    CapsuleWorld world;
    fakes::FakePanelHost host;
    SteppedAnimations animations;
    static inline QQmlEngine* engine = nullptr;
    std::unique_ptr<CapsuleWindow> window;
};

TEST_F(CapsuleMotionTest, OpensByItsSpringAlsoWhenTheViewIsMadeForIt) {
    raise(world.idleForm());
    world.tracking.time.advance(CapsuleWindow::viewKept.count());
    ASSERT_FALSE(window->hasView());
    window->capsule().expand();
    ASSERT_TRUE(window->hasView());
    window->panel().setColor(Qt::green);
    const std::vector<int> widths = over(kOpened, [this] { return width(); });
    EXPECT_LT(widths[5], openFrame().width() - 20) << "on its way after 60 ms";
    EXPECT_EQ(widths.back(), openFrame().width());
}

TEST_F(CapsuleMotionTest, OpensByASpringThatGoesALittleTooFar) {
    raise(world.idleForm());
    EXPECT_EQ(width(), 0) << "at rest nothing is drawn";
    window->capsule().expand();
    const std::vector<int> widths = over(kOpened, [this] { return width(); });
    const auto widest = std::ranges::max_element(widths);
    EXPECT_TRUE(std::is_sorted(widths.begin(), widest));
    EXPECT_LT(widths[5], openFrame().width() - 20) << "on its way after 60 ms";
    EXPECT_GT(*widest, openFrame().width());
    EXPECT_LT(*widest, openFrame().width() + 10);
    EXPECT_EQ(widths.back(), openFrame().width());
}

TEST_F(CapsuleMotionTest, RowFadesInATenthOfASecondLater) {
    raise(world.idleForm());
    window->capsule().expand();
    const std::vector<int> before = over(90, [this] { return brightness(); });
    EXPECT_LT(*std::ranges::max_element(before), 30);
    const std::vector<int> fading = over(300, [this] { return brightness(); });
    EXPECT_GT(fading[5], 40) << "half way";
    EXPECT_LT(fading[5], 200);
    EXPECT_GT(fading.back(), 200);
}

TEST_F(CapsuleMotionTest, ClosesInAFifthOfASecond) {
    raiseOpen(world.idleForm());
    window->capsule().collapse();
    const std::vector<int> widths = over(200, [this] { return width(); });
    EXPECT_TRUE(std::is_sorted(widths.rbegin(), widths.rend())) << "it never swings back";
    EXPECT_GT(widths[2], 198);
    animations.pass(60);
    EXPECT_EQ(width(), 0) << "nothing is left";
}

TEST_F(CapsuleMotionTest, AnInterruptedOpeningTurnsRoundWithoutAJump) {
    raise(world.idleForm());
    window->capsule().expand();
    animations.pass(90);
    const int turned = width();
    ASSERT_GT(turned, 198);
    window->capsule().collapse();
    EXPECT_NEAR(width(), turned, 2);
    animations.pass(kFrame);
    EXPECT_LT(width(), turned);
    EXPECT_GT(width(), turned - 60);
}

TEST_F(CapsuleMotionTest, DotBreathesWhileTheClockRunsAndStandsStillWhilePaused) {
    raiseRunning();
    window->capsule().expand();
    animations.pass(kOpened + 400);
    EXPECT_GT(spread(over(2200, [this] { return dot(); })), 40);
    world.tracking.tracker.pause(world.tracking.time.now());
    world.tracking.time.settle();
    animations.pass(50);
    EXPECT_EQ(spread(over(2200, [this] { return dot(); })), 0);
}

TEST_F(CapsuleMotionTest, LeavingFadesAway) {
    raiseOpen(world.idleForm());
    const auto alpha = [this] {
        return 255 - picture().pixelColor(openFrame().center().x(), 0).green();
    };
    ASSERT_GT(alpha(), 250);
    window->capsule().animateOut([] {});
    const std::vector<int> fading = over(280, alpha);
    EXPECT_TRUE(std::is_sorted(fading.rbegin(), fading.rend()));
    EXPECT_GT(fading[5], 10);
    EXPECT_LT(fading[5], 250);
    EXPECT_LT(fading.back(), 10);
}

TEST_F(CapsuleMotionTest, UnderReducedMotionAllIsWhereItBelongsAtOnce) {
    Motion::of(*engine)->setReduced(true);
    raiseRunning();
    window->capsule().expand();
    QCoreApplication::processEvents();
    EXPECT_EQ(width(), openFrame().width());
    EXPECT_GT(brightness(), 200);
    EXPECT_EQ(spread(over(2200, [this] { return dot(); })), 0);
    window->capsule().collapse();
    QCoreApplication::processEvents();
    EXPECT_EQ(width(), 0);
}

TEST_F(CapsuleMotionTest, ReducedMotionSwitchedOnIsFollowedAtOnce) {
    raiseRunning();
    window->capsule().expand();
    animations.pass(60);
    ASSERT_NE(width(), openFrame().width());
    Motion::of(*engine)->setReduced(true);
    EXPECT_EQ(width(), openFrame().width()) << "the spring is over";
    animations.pass(500);
    EXPECT_EQ(spread(over(2200, [this] { return dot(); })), 0) << "the dot does not breathe";
    Motion::of(*engine)->setReduced(false);
    EXPECT_GT(spread(over(2600, [this] { return dot(); })), 40) << "and does again";
}

TEST_F(CapsuleMotionTest, AClickBeforeTheRowIsSeenIsTheCapsulesAllTheSame) {
    raise(world.idleForm());
    mouse(QEvent::MouseMove, {269, 5}, Qt::NoButton, Qt::NoButton);
    window->capsule().setHovered(true);
    animations.pass(20);
    click({269, 5});
    EXPECT_EQ(world.calls, QStringList(text("tap")));
}

} // namespace
} // namespace vantle::tests
