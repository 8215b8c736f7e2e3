#include "platform/session/QtOverlayStage.h"

#include "base/Scheduler.h"
#include "platform/PanelHost.h"
#include "platform/WholeScreen.h"
#include "platform/session/QtOverlayWindow.h"

#include <algorithm>
#include <vector>

namespace vantle {

namespace {

constexpr Seconds kFrame{1.0 / 60};

} // namespace

/// The windows that are up at one time, driven by one timer.
class QtOverlayStage::Show {
public:
    explicit Show(Scheduler& scheduler) : m_scheduler(scheduler) {}

    void add(QtOverlayWindow& window) {
        m_windows.push_back(&window);
        window.refresh();
        if (m_frames) return;
        m_frames = m_scheduler.scheduleRepeatingTimer(kFrame, Seconds::zero(), [this] { step(); });
    }
    void remove(QtOverlayWindow& window) { std::erase(m_windows, &window); }

private:
    void step() {
        for (QtOverlayWindow* window : m_windows)
            window->refresh();
        if (std::ranges::all_of(m_windows, &QtOverlayWindow::isOver)) m_frames.reset();
    }

    Scheduler& m_scheduler;
    std::vector<QtOverlayWindow*> m_windows;
    TimerHandle m_frames;
};

class QtOverlayStage::Place final : public OverlayWindow {
public:
    Place(std::shared_ptr<Show> show, std::unique_ptr<QtOverlayWindow> window)
        : m_show(std::move(show))
        , m_window(std::move(window)) {
        m_show->add(*m_window);
    }
    ~Place() override { m_show->remove(*m_window); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

private:
    const std::shared_ptr<Show> m_show;
    const std::unique_ptr<QtOverlayWindow> m_window;
};

QtOverlayStage::QtOverlayStage(const Clock& clock, Scheduler& scheduler, const Screens& screens,
                               PanelHost& host)
    : m_clock(clock)
    , m_scheduler(scheduler)
    , m_screens(screens)
    , m_host(host) {}

QtOverlayStage::~QtOverlayStage() = default;

bool QtOverlayStage::isAvailable() const { return m_host.hasInputRegions(); }

std::vector<QRect> QtOverlayStage::frames() const { return wholescreen::frames(m_screens); }

std::unique_ptr<OverlayWindow> QtOverlayStage::putUp(const QRect& frame,
                                                     std::unique_ptr<OverlayView> view) {
    if (!wholescreen::exists(m_screens, frame)) return std::make_unique<OverlayWindow>();
    std::shared_ptr<Show> show = m_show.lock();
    if (!show) m_show = show = std::make_shared<Show>(m_scheduler);
    return std::make_unique<Place>(
        std::move(show),
        std::make_unique<QtOverlayWindow>(frame, std::move(view), m_clock, m_screens, m_host));
}

} // namespace vantle
