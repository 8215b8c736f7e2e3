// What everything that puts pictures over screens promises.
#include "contract/Contract.h"
#include "fakes/FakeOverlayStage.h"
#include "fakes/FakePanelHost.h"
#include "fakes/FakeScreens.h"
#include "fakes/VirtualTime.h"
#include "platform/session/QtOverlayStage.h"
#include "platform/wayland/FakeLayerShell.h"
#include "platform/wayland/LayerOverlayStage.h"
#include "support/Await.h"

#include <QImage>

#include <algorithm>
#include <functional>

namespace vantle {
namespace {

constexpr QRect kLeft(0, 0, 320, 200);
constexpr QRect kRight(320, 0, 400, 300);
constexpr Seconds kEnd{3.0};

/// What became of a view.
struct Seen {
    QSize painted;
    bool isGone = false;
};

class SeenView final : public OverlayView {
public:
    SeenView(Date start, Seen& seen) : OverlayView(start), m_seen(seen) {}
    ~SeenView() override { m_seen.isGone = true; }
    SeenView(const SeenView&) = delete;
    SeenView& operator=(const SeenView&) = delete;

    [[nodiscard]] Seconds endTime() const override { return kEnd; }
    void paint(QImage& frame, Seconds) override {
        frame.fill(Qt::transparent);
        m_seen.painted = frame.deviceIndependentSize().toSize();
    }
    [[nodiscard]] QRegion solidPart(QSize, Seconds) const override { return {}; }

private:
    Seen& m_seen;
};

/// A stage over two screens, and what drives it.
class StageWorld {
public:
    virtual ~StageWorld() = default;
    [[nodiscard]] virtual OverlayStage& stage() = 0;
    [[nodiscard]] virtual Date now() = 0;
    virtual void unplug(const QRect& frame) = 0;
    /// Lets a view that starts now come to its end.
    virtual void finish() = 0;
    /// Lets what was put up be painted, until it is. False where nothing ever is.
    virtual bool show(const std::function<bool()>& /*isPainted*/) { return false; }
};

class FakeWorld final : public StageWorld {
public:
    FakeWorld() { m_stage.screens = {kLeft, kRight}; }
    [[nodiscard]] OverlayStage& stage() override { return m_stage; }
    [[nodiscard]] Date now() override { return {}; }
    void unplug(const QRect& frame) override { m_stage.unplug(frame); }
    void finish() override { m_stage.finish(); }

private:
    fakes::FakeOverlayStage m_stage;
};

class QtWorld final : public StageWorld {
public:
    QtWorld() { m_screens.shapes = {shape(kLeft), shape(kLeft), shape(kRight)}; }
    [[nodiscard]] OverlayStage& stage() override { return m_stage; }
    [[nodiscard]] Date now() override { return m_time.now(); }
    void unplug(const QRect& frame) override {
        auto shapes = m_screens.shapes;
        std::erase_if(shapes, [&frame](const auto& one) { return one.frame == QRectF(frame); });
        m_screens.arrange(shapes);
    }
    void finish() override { m_time.advance(kEnd); }
    bool show(const std::function<bool()>& isPainted) override {
        EXPECT_TRUE(tests::await(isPainted));
        return true;
    }

private:
    static ScreenShape shape(const QRect& frame) { return {.frame = frame, .available = frame}; }

    fakes::VirtualTime m_time;
    fakes::FakeScreens m_screens;
    fakes::FakePanelHost m_host;
    QtOverlayStage m_stage{m_time, m_time, m_screens, m_host};
};

class LayerWorld final : public StageWorld {
public:
    LayerWorld() {
        m_shell.offerSurfaces();
        m_shell.offerShell();
        m_left = m_shell.offerScreen({.place = kLeft.topLeft(), .mode = kLeft.size()});
        m_shell.offerScreen({.place = kLeft.topLeft(), .mode = kLeft.size()}); // its mirror
        m_shell.offerScreen({.place = kRight.topLeft(), .mode = kRight.size()});
        m_compositor.settle();
    }
    [[nodiscard]] OverlayStage& stage() override { return m_stage; }
    [[nodiscard]] Date now() override { return m_time.now(); }
    void unplug(const QRect& frame) override {
        EXPECT_EQ(frame, kLeft);
        m_compositor.withdraw(m_left);
        m_compositor.withdraw(m_left + 1);
        m_compositor.settle();
    }
    void finish() override { m_time.advance(kEnd); }
    bool show(const std::function<bool()>& /*isPainted*/) override {
        m_compositor.settle();
        for (std::size_t i = 0; i < m_shell.surfaces(); ++i) {
            const QSize size = m_shell.surface(i).screen->mode;
            m_shell.configure(m_shell.surface(i), static_cast<std::uint32_t>(size.width()),
                              static_cast<std::uint32_t>(size.height()));
        }
        return true;
    }

private:
    fakes::VirtualTime m_time;
    tests::FakeCompositor m_compositor;
    tests::FakeLayerShell m_shell{m_compositor};
    int m_left = 0;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    LayerOverlayStage m_stage{m_connection, m_time, m_time};
};

class OverlayStageContract : public contract::Contract<StageWorld> {
protected:
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame, Seen& of) {
        return world().stage().putUp(frame, std::make_unique<SeenView>(world().now(), of));
    }

    Seen seen, other;
};

TEST_P(OverlayStageContract, TellsEachScreenOnceAlsoWhereTwoMirrorEachOther) {
    EXPECT_TRUE(world().stage().isAvailable());
    EXPECT_EQ(world().stage().frames(), (std::vector{kLeft, kRight}));
}

TEST_P(OverlayStageContract, PaintsEachViewInTheSizeOfItsScreen) {
    const auto left = putUp(kLeft, seen), right = putUp(kRight, other);
    const auto areBoth = [this] { return !seen.painted.isEmpty() && !other.painted.isEmpty(); };
    if (!world().show(areBoth)) return;
    EXPECT_EQ(seen.painted, kLeft.size());
    EXPECT_EQ(other.painted, kRight.size());
}

TEST_P(OverlayStageContract, AScreenThatIsNotThereShowsNothing) {
    const auto window = putUp({5000, 0, 320, 200}, seen);
    EXPECT_NE(window, nullptr);
    EXPECT_TRUE(seen.isGone);
}

TEST_P(OverlayStageContract, AWindowThatIsDestroyedTakesItsViewAlong) {
    auto window = putUp(kLeft, seen);
    world().show([this] { return !seen.painted.isEmpty(); });
    EXPECT_FALSE(seen.isGone);
    window.reset();
    EXPECT_TRUE(seen.isGone);
}

TEST_P(OverlayStageContract, AViewThatIsOverIsGoneThoughItsWindowIsKept) {
    const auto window = putUp(kLeft, seen);
    world().show([this] { return !seen.painted.isEmpty(); });
    world().finish();
    EXPECT_TRUE(seen.isGone);
}

TEST_P(OverlayStageContract, AScreenThatGoesTakesItsViewAlongAndNoOther) {
    const auto left = putUp(kLeft, seen), right = putUp(kRight, other);
    world().show([this] { return !seen.painted.isEmpty(); });
    world().unplug(kLeft);
    EXPECT_TRUE(seen.isGone);
    EXPECT_FALSE(other.isGone);
    EXPECT_EQ(world().stage().frames(), std::vector{kRight});
}

INSTANTIATE_TEST_SUITE_P(Stages, OverlayStageContract,
                         testing::Values(contract::maker<StageWorld, FakeWorld>("Fake"),
                                         contract::maker<StageWorld, QtWorld>("Qt"),
                                         contract::maker<StageWorld, LayerWorld>("LayerShell")),
                         contract::kByName);

} // namespace
} // namespace vantle
