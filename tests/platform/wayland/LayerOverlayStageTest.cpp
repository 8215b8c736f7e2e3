#include "platform/wayland/LayerOverlayStage.h"

#include "fakes/VirtualTime.h"
#include "platform/wayland/FakeLayerShell.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::FakeCompositor;
using tests::FakeLayerShell;

constexpr QRect kFrame(0, 0, 320, 200);
constexpr double kEnd = 3.0;

/// What became of a view.
struct Seen {
    std::vector<double> times; ///< of the frames
    QSize size;
    bool isGone = false;
};

/// A red field on the left half of the screen.
class HalfRed final : public OverlayView {
public:
    HalfRed(Date start, Seen& seen) : OverlayView(start), m_seen(seen) {}
    ~HalfRed() override { m_seen.isGone = true; }
    HalfRed(const HalfRed&) = delete;
    HalfRed& operator=(const HalfRed&) = delete;

    [[nodiscard]] Seconds endTime() const override { return Seconds(kEnd); }
    void paint(QImage& frame, Seconds t) override {
        m_seen.times.push_back(t.count());
        m_seen.size = frame.deviceIndependentSize().toSize();
        frame.fill(Qt::transparent);
        QPainter painter(&frame);
        painter.fillRect(0, 0, m_seen.size.width() / 2, m_seen.size.height(), Qt::red);
    }
    [[nodiscard]] QRegion solidPart(QSize, Seconds) const override { return {}; }

private:
    Seen& m_seen;
};

class LayerOverlayStageTest : public testing::Test {
protected:
    LayerOverlayStageTest() {
        surfaces = shell.offerSurfaces();
        layers = shell.offerShell();
    }

    /// Makes the stage, over what is offered by then.
    void begin() {
        connection = std::make_unique<WaylandConnection>(compositor.takeSocket());
        stage = std::make_unique<LayerOverlayStage>(*connection, time, time);
        compositor.settle();
    }
    void beginWithOneScreen() {
        screen = shell.offerScreen({.place = {0, 0}, .mode = kFrame.size()});
        begin();
    }
    void putUp(const QRect& frame = kFrame) {
        windows.push_back(stage->putUp(frame, std::make_unique<HalfRed>(time.now(), seen)));
        compositor.settle();
    }
    FakeLayerShell::Surface& surface(std::size_t number = 0) { return shell.surface(number); }
    /// The compositor's part until the first frame stands.
    void show() {
        putUp();
        shell.configure(surface(), 320, 200);
    }
    /// Some time goes by, and the compositor asks for a frame.
    void frame(double after = 1.0 / 60) {
        time.advance(after);
        compositor.settle();
        shell.askForFrame(surface());
    }
    [[nodiscard]] bool isGone() {
        compositor.settle();
        return seen.isGone && surface().surface == nullptr && surface().layer == nullptr;
    }

    fakes::VirtualTime time;
    FakeCompositor compositor;
    FakeLayerShell shell{compositor};
    int surfaces = 0, layers = 0, screen = 0;
    Seen seen, other;
    std::unique_ptr<WaylandConnection> connection;
    std::unique_ptr<LayerOverlayStage> stage;
    std::vector<std::unique_ptr<OverlayWindow>> windows;
};

TEST_F(LayerOverlayStageTest, ASurfaceIsAboveEverythingAndTakesNeitherPressesNorKeys) {
    beginWithOneScreen();
    ASSERT_TRUE(stage->isAvailable());
    EXPECT_EQ(stage->frames(), std::vector{kFrame});
    putUp();
    ASSERT_EQ(shell.surfaces(), 1u);
    EXPECT_EQ(surface().level, 3u) << "overlay";
    EXPECT_EQ(surface().anchor, 15u) << "all edges";
    EXPECT_EQ(surface().zone, -1);
    EXPECT_EQ(surface().keyboard, 0u);
    EXPECT_TRUE(surface().feelsNothing);
    EXPECT_EQ(surface().commits, 1);
    EXPECT_TRUE(surface().pictures.empty()) << "none before it is configured";
}

TEST_F(LayerOverlayStageTest, TheFirstPictureComesWithTheSizeAndTheNextWhenAskedFor) {
    beginWithOneScreen();
    putUp();
    time.advance(0.5);
    shell.configure(surface(), 320, 200);
    EXPECT_EQ(surface().acked, FakeLayerShell::lastSerial());
    ASSERT_EQ(surface().pictures.size(), 1u);
    EXPECT_EQ(seen.times, std::vector{0.5}) << "a late size costs the head of the show";
    EXPECT_EQ(seen.size, kFrame.size());
    const QImage picture = surface().pictures.front();
    EXPECT_EQ(picture.size(), kFrame.size());
    EXPECT_EQ(picture.pixel(159, 199), 0xFFFF0000);
    EXPECT_EQ(picture.pixel(160, 0), 0u) << "see-through";

    time.advance(0.25);
    compositor.settle();
    EXPECT_EQ(surface().pictures.size(), 1u) << "nobody has asked for another one";
    shell.askForFrame(surface());
    EXPECT_EQ(seen.times, (std::vector{0.5, 0.75}));
    EXPECT_EQ(surface().pictures.size(), 2u);
}

TEST_F(LayerOverlayStageTest, AnOutputOf60HzShowsEveryFrameAndAFasterOneNoMore) {
    beginWithOneScreen();
    show();
    for (int i = 0; i < 60; ++i)
        frame(1.0 / 60);
    EXPECT_EQ(surface().pictures.size(), 61u);
    for (int i = 0; i < 144; ++i)
        frame(1.0 / 144);
    EXPECT_LE(surface().pictures.size(), 61u + 75);
    EXPECT_GE(surface().pictures.size(), 61u + 45);
}

TEST_F(LayerOverlayStageTest, TheEndOfTheViewEndsTheSurface) {
    beginWithOneScreen();
    show();
    for (double t = 0; t < kEnd - 0.1; t += 0.1)
        frame(0.1);
    EXPECT_FALSE(seen.isGone);
    time.advance(0.2);
    EXPECT_TRUE(isGone());
}

TEST_F(LayerOverlayStageTest, ACompositorThatNeverConfiguresOrNeverAsksKeepsNoSurface) {
    beginWithOneScreen();
    putUp();
    time.advance(kEnd);
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(seen.times.empty());

    seen = {};
    putUp();
    shell.configure(surface(1), 320, 200);
    time.advance(kEnd);
    compositor.settle();
    EXPECT_EQ(surface(1).surface, nullptr);
    EXPECT_EQ(seen.times.size(), 1u);
}

TEST_F(LayerOverlayStageTest, WithoutAFreePictureItWaitsAndGoesOnWithTheNextOne) {
    beginWithOneScreen();
    shell.setReleases(false);
    show();
    for (int i = 0; i < 5; ++i)
        frame();
    EXPECT_EQ(surface().pictures.size(), 2u) << "there are no more than two";
    shell.release(surface());
    compositor.settle();
    EXPECT_EQ(surface().pictures.size(), 3u);
    for (int i = 0; i < 5; ++i)
        frame();
    time.advance(kEnd);
    EXPECT_TRUE(isGone()) << "also when none is ever given back";
}

TEST_F(LayerOverlayStageTest, WhatTheCompositorClosesIsGone) {
    beginWithOneScreen();
    show();
    shell.close(surface());
    EXPECT_TRUE(isGone());
    time.advance(kEnd);
    windows.clear();
    compositor.settle();
    EXPECT_TRUE(stage->isAvailable()) << "for the next show";
}

TEST_F(LayerOverlayStageTest, AnOutputThatIsUnpluggedTakesItsSurfaceWithItAndNoOther) {
    beginWithOneScreen();
    shell.offerScreen({.place = {320, 0}, .mode = {640, 480}});
    compositor.settle();
    EXPECT_EQ(stage->frames(), (std::vector{kFrame, QRect(320, 0, 640, 480)}));
    show();
    windows.push_back(
        stage->putUp({320, 0, 640, 480}, std::make_unique<HalfRed>(time.now(), other)));
    compositor.settle();
    EXPECT_EQ(surface(1).screen->mode, QSize(640, 480));
    compositor.withdraw(screen);
    EXPECT_TRUE(isGone());
    EXPECT_FALSE(other.isGone);
    EXPECT_EQ(stage->frames(), (std::vector{QRect(320, 0, 640, 480)}));
    putUp();
    EXPECT_EQ(shell.surfaces(), 2u) << "a screen that is gone shows nothing";
}

TEST_F(LayerOverlayStageTest, AtFractionalScalesThePictureHasThePixelsOfTheOutput) {
    shell.offerViewporter();
    shell.offerLogicalOutputs();
    shell.offerScreen(
        {.place = {0, 0}, .mode = {480, 300}, .scale = 2, .logical = {10, 0, 320, 200}});
    begin();
    ASSERT_EQ(stage->frames(), (std::vector{QRect(10, 0, 320, 200)}));
    putUp({10, 0, 320, 200});
    shell.configure(surface(), 320, 200);
    ASSERT_EQ(surface().pictures.size(), 1u);
    EXPECT_EQ(surface().pictures[0].size(), QSize(480, 300));
    EXPECT_EQ(surface().destination, QSize(320, 200));
    EXPECT_EQ(surface().scale, 1);
    EXPECT_EQ(seen.size, QSize(320, 200)) << "views are painted in points";
    EXPECT_EQ(surface().pictures[0].pixel(239, 299), 0xFFFF0000);
    EXPECT_EQ(surface().pictures[0].pixel(240, 0), 0u);
}

TEST_F(LayerOverlayStageTest, WithoutTheOtherProtocolsAWholeScaleIsTheBuffers) {
    shell.offerScreen({.place = {0, 0}, .mode = {400, 640}, .scale = 2, .transform = 1});
    begin();
    ASSERT_EQ(stage->frames(), std::vector{kFrame}) << "turned by a quarter";
    show();
    EXPECT_EQ(surface().pictures[0].size(), QSize(640, 400));
    EXPECT_EQ(surface().scale, 2);
}

TEST_F(LayerOverlayStageTest, AnotherSizeInTheMiddleOfAShowIsPaintedAtOnce) {
    beginWithOneScreen();
    show();
    frame();
    shell.configure(surface(), 300, 180);
    ASSERT_EQ(surface().pictures.size(), 3u);
    EXPECT_EQ(surface().pictures.back().size(), QSize(300, 180));
    shell.configure(surface(), 300, 180);
    EXPECT_EQ(surface().pictures.size(), 3u);
    EXPECT_EQ(surface().acked, FakeLayerShell::lastSerial());
    frame();
    EXPECT_EQ(surface().pictures.size(), 4u);
}

TEST_F(LayerOverlayStageTest, ASizeThatCannotBePaintedIsNoShow) {
    for (const auto& [width, height] : {std::pair{0u, 0u}, {0x80000000u, 2u}, {32767u, 32767u}}) {
        seen = {};
        if (!stage) beginWithOneScreen();
        putUp();
        auto& last = surface(shell.surfaces() - 1);
        shell.configure(last, width, height);
        compositor.settle();
        EXPECT_EQ(last.surface, nullptr);
        EXPECT_TRUE(seen.isGone);
        EXPECT_TRUE(connection->isAlive());
    }
}

TEST_F(LayerOverlayStageTest, ACompositorThatVanishesEndsTheShowAndLeavesNoStage) {
    beginWithOneScreen();
    show();
    compositor.vanish();
    compositor.settle();
    EXPECT_TRUE(seen.isGone);
    EXPECT_FALSE(stage->isAvailable());
    EXPECT_TRUE(stage->frames().empty());
    putUp();
    time.advance(kEnd);
    windows.clear();
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(LayerOverlayStageTest, ACompositorThatTalksNonsenseEndsTheShow) {
    beginWithOneScreen();
    show();
    compositor.talkNonsense();
    compositor.settle();
    EXPECT_TRUE(seen.isGone);
    EXPECT_FALSE(stage->isAvailable());
}

TEST_F(LayerOverlayStageTest, AShellThatIsTakenBackEndsTheShowAndOneThatComesServesTheNext) {
    beginWithOneScreen();
    show();
    compositor.withdraw(layers);
    EXPECT_TRUE(isGone());
    EXPECT_FALSE(stage->isAvailable());
    shell.offerShell(2);
    compositor.settle();
    ASSERT_TRUE(stage->isAvailable());
    putUp();
    EXPECT_EQ(shell.surfaces(), 2u);
}

TEST_F(LayerOverlayStageTest, WithoutAShellOrACompositorThereIsNoStage) {
    compositor.withdraw(layers);
    beginWithOneScreen();
    EXPECT_FALSE(stage->isAvailable());
    putUp();
    EXPECT_EQ(shell.surfaces(), 0u);
    EXPECT_TRUE(seen.isGone);
}

TEST_F(LayerOverlayStageTest, AWindowThatIsDismissedTakesItsSurfaceAndItsTimersAlong) {
    beginWithOneScreen();
    show();
    frame();
    windows.clear();
    EXPECT_TRUE(isGone());
    EXPECT_EQ(time.timerCount(), 0u);
    EXPECT_TRUE(connection->isAlive());
}

} // namespace
} // namespace vantle
