// What every host of floating panels promises.
#include "contract/Contract.h"
#include "fakes/FakePanelHost.h"
#include "platform/x11/X11PanelHost.h"
#include "support/Await.h"
#include "support/Text.h"

#include <QCursor>
#include <QGuiApplication>
#include <QProcess>

#include <utility>
#include <vector>

namespace vantle {
namespace {

using tests::await;
using tests::text;

const ScreenShape kScreen{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 28, 1440, 872)};
/// From 519 on, without a window.
const Placement kCorner{.screen = kScreen, .size = {200, 100}, .inset = {12, 10}};
const Placement kTop{.spot = Placement::Spot::TopCenter, .screen = kScreen, .size = {402, 100}};
constexpr int kLongerThanARest = 700; // ms, that of X11RestSensor and what it looks after

/// A desktop with a pointer, an application in front, and a compositor that comes and goes.
class HostWorld {
public:
    virtual ~HostWorld() = default;
    [[nodiscard]] virtual PanelHost& host() = 0;
    virtual void startCompositor() = 0;
    virtual void endCompositor() = 0;
    virtual void movePointer(QPoint place) = 0;
    /// Presses the first button where the pointer is, or lets it go.
    virtual void setButtonDown(bool isDown) = 0;
    /// Where the desktop has the window.
    [[nodiscard]] virtual QRect frameOf(const QWindow& window) = 0;
    /// Whether the keyboard is with the window.
    [[nodiscard]] virtual bool hasKeyboard(QWindow& window) = 0;
};

class FakeWorld final : public HostWorld {
public:
    FakeWorld() { m_host.composited = false; }
    [[nodiscard]] PanelHost& host() override { return m_host; }
    void startCompositor() override { m_host.setComposited(true); }
    void endCompositor() override { m_host.setComposited(false); }
    void movePointer(QPoint place) override { m_host.movePointer(place); }
    void setButtonDown(bool isDown) override { m_host.setButtonDown(isDown); }
    [[nodiscard]] QRect frameOf(const QWindow& window) override { return window.geometry(); }
    [[nodiscard]] bool hasKeyboard(QWindow& window) override {
        return m_host.keyboardOwner == &window;
    }

private:
    fakes::FakePanelHost m_host;
};

/// The X server of the test.
class X11World final : public HostWorld {
public:
    X11World() {
        QCursor::setPos(1200, 800);
        m_below.setGeometry(700, 500, 300, 200);
        m_below.show();
        EXPECT_TRUE(await([this] { return focus() == m_below.winId(); }));
    }
    ~X11World() override { endCompositor(); }
    X11World(const X11World&) = delete;
    X11World& operator=(const X11World&) = delete;

    [[nodiscard]] PanelHost& host() override { return m_host; }
    void startCompositor() override {
        m_compositor.start(text("picom"), {text("--config"), text("/dev/null"), text("--backend"),
                                           text("xrender"), text("--no-vsync")});
        EXPECT_TRUE(m_compositor.waitForStarted());
    }
    void endCompositor() override {
        m_compositor.kill(); // it gives nothing up
        m_compositor.waitForFinished();
    }
    void movePointer(QPoint place) override { QCursor::setPos(place); }
    void setButtonDown(bool isDown) override {
        EXPECT_TRUE(tests::run(isDown ? text("xdotool mousedown 1") : text("xdotool mouseup 1")));
    }
    [[nodiscard]] QRect frameOf(const QWindow& window) override {
        const auto id = static_cast<xcb_window_t>(window.winId());
        const auto geometry =
            m_x11.reply<xcb_get_geometry_reply>(xcb_get_geometry(m_x11.xcb(), id));
        return geometry ? QRect(geometry->x, geometry->y, geometry->width, geometry->height)
                        : QRect();
    }
    [[nodiscard]] bool hasKeyboard(QWindow& window) override { return focus() == window.winId(); }

private:
    [[nodiscard]] WId focus() {
        const auto answer =
            m_x11.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_x11.xcb()));
        return answer ? answer->focus : 0;
    }

    X11Connection m_x11;
    QtScheduler m_scheduler;
    X11RawPresses m_presses{m_x11};
    X11PanelHost m_host{m_x11, m_scheduler, m_presses};
    QWindow m_below;
    QProcess m_compositor;
};

class PanelHostContract : public contract::Contract<HostWorld> {
protected:
    PanelHostContract() {
        QObject::connect(&host(), &PanelHost::compositedChanged,
                         [this] { m_told.push_back(host().isComposited()); });
    }
    [[nodiscard]] PanelHost& host() const { return world().host(); }
    /// A window as panels are: placed, and then shown.
    [[nodiscard]] std::unique_ptr<QWindow> makePanel(const Placement& placement = kCorner) const {
        auto panel = std::make_unique<QWindow>();
        (void)host().place(*panel, placement);
        panel->show();
        EXPECT_TRUE(await([&] { return panel->isExposed(); }));
        return panel;
    }

    QList<bool> m_told;
};

INSTANTIATE_TEST_SUITE_P(, PanelHostContract,
                         testing::Values(contract::maker<HostWorld, FakeWorld>("Fake"),
                                         contract::maker<HostWorld, X11World>("X11")),
                         contract::kByName);

TEST_P(PanelHostContract, TellsOfACompositorThatComesAndGoes) {
    EXPECT_FALSE(host().isComposited());
    for (int i = 0; i < 2; ++i) {
        world().startCompositor();
        EXPECT_TRUE(await([this] { return host().isComposited(); }));
        world().endCompositor();
        EXPECT_TRUE(await([this] { return !host().isComposited(); }));
    }
    EXPECT_EQ(m_told, (QList<bool>{true, false, true, false}));
}

TEST_P(PanelHostContract, PlacesAWindowWhereItsSurfaceAskedToStand) {
    auto shadowed = kCorner;
    shadowed.room = {16, 8, 16, 24};
    const Placement beside{.spot = Placement::Spot::Beside,
                           .screen = kScreen,
                           .size = {360, 500},
                           .inset = {8, 8},
                           .anchor = QRectF(1400, 2, 24, 24),
                           .gap = 4};
    const Placement whole{.spot = Placement::Spot::WholeScreen, .screen = kScreen};
    const std::vector<std::pair<Placement, QRect>> expected{{kCorner, {1228, 38, 200, 100}},
                                                            {shadowed, {1212, 30, 232, 132}},
                                                            {kTop, {519, 0, 402, 100}},
                                                            {beside, {1072, 36, 360, 500}},
                                                            {whole, {0, 0, 1440, 900}}};
    for (const auto& [placement, frame] : expected) {
        const auto panel = makePanel(placement);
        EXPECT_TRUE(await([&, here = frame] { return world().frameOf(*panel) == here; }))
            << frame.x() << ' ' << frame.y();
        EXPECT_FALSE(world().hasKeyboard(*panel));
    }
}

TEST_P(PanelHostContract, MovesAWindowThatIsShown) {
    const auto panel = makePanel();
    auto lower = kCorner;
    lower.inset.setY(200);
    EXPECT_EQ(host().place(*panel, lower), QRect(0, 0, 200, 100));
    EXPECT_TRUE(await([&] { return world().frameOf(*panel) == QRect(1228, 228, 200, 100); }));
}

TEST_P(PanelHostContract, TellsThePointerFromTheWindowsCorner) {
    const auto panel = makePanel();
    ASSERT_TRUE(await([&] { return world().frameOf(*panel).x() == 1228; }));
    QCursor::setPos(1240, 50);
    EXPECT_TRUE(await([&] { return host().pointerIn(*panel) == QPoint(12, 12); }));
}

TEST_P(PanelHostContract, GivesTheKeyboardToThePanelAndBack) {
    const auto panel = makePanel();
    EXPECT_FALSE(world().hasKeyboard(*panel)) << "showing it gives it nothing";
    host().takeKeyboard(*panel);
    EXPECT_TRUE(await([&] { return world().hasKeyboard(*panel); }));
    host().takeKeyboard(*panel);
    host().returnKeyboard(*panel);
    EXPECT_TRUE(await([&] { return !world().hasKeyboard(*panel); }));
}

TEST_P(PanelHostContract, ReturnsNothingThatIsAnothersByNow) {
    const auto panel = makePanel();
    const auto other = makePanel();
    host().takeKeyboard(*panel);
    host().takeKeyboard(*other);
    ASSERT_TRUE(await([&] { return world().hasKeyboard(*other); }));
    host().returnKeyboard(*panel);
    EXPECT_TRUE(world().hasKeyboard(*other));
    host().returnKeyboard(*other);
}

TEST_P(PanelHostContract, SensorTellsOfEachRestUntilItIsGone) {
    int rested = 0;
    auto sensor = host().senseAt(kTop, {81, 0, 230, 10}, [&] { ++rested; });
    ASSERT_TRUE(sensor);
    EXPECT_EQ(rested, 0);
    for (int i = 1; i <= 2; ++i) {
        world().movePointer({700, 5});
        EXPECT_TRUE(await([&] { return rested == i; }));
        world().movePointer({705, 6}); // still in it
        tests::runFor(kLongerThanARest);
        world().movePointer({700, 400});
        tests::runFor(kLongerThanARest);
    }
    EXPECT_EQ(rested, 2);
    sensor.reset();
    world().movePointer({700, 5});
    tests::runFor(kLongerThanARest);
    EXPECT_EQ(rested, 2);
}

TEST_P(PanelHostContract, SensorFeelsAPointerThatIsThereAlready) {
    world().movePointer({700, 5});
    tests::runFor(kLongerThanARest);
    int rested = 0;
    const auto sensor = host().senseAt(kTop, {81, 0, 230, 10}, [&] { ++rested; });
    EXPECT_EQ(rested, 0) << "not within the call";
    EXPECT_TRUE(await([&] { return rested == 1; }));
}

TEST_P(PanelHostContract, SensorSaysNothingWhileAButtonIsDown) {
    int rested = 0;
    const auto sensor = host().senseAt(kTop, {81, 0, 230, 10}, [&] { ++rested; });
    world().movePointer({700, 400});
    world().setButtonDown(true);
    world().movePointer({700, 5});
    tests::runFor(2 * kLongerThanARest);
    world().setButtonDown(false);
    tests::runFor(2 * kLongerThanARest);
    EXPECT_EQ(rested, 0) << "what was dragged there was for what lies there";
    world().movePointer({700, 400});
    tests::runFor(kLongerThanARest);
    world().movePointer({700, 5});
    EXPECT_TRUE(await([&] { return rested == 1; }));
}

TEST_P(PanelHostContract, SensorMayGoInItsOwnCall) {
    std::unique_ptr<PointerSensor> sensor;
    int rested = 0;
    sensor = host().senseAt(kTop, {81, 0, 230, 10}, [&] {
        sensor.reset();
        ++rested;
    });
    world().movePointer({700, 5});
    EXPECT_TRUE(await([&] { return rested == 1; }));
}

} // namespace
} // namespace vantle
