#include "ceremony/RasterStage.h"

#include "base/Scheduler.h"
#include "ceremony/OverlayScreens.h"
#include "ceremony/RasterOverlayWindow.h"

#include <algorithm>
#include <malloc.h>
#include <vector>

namespace vantle {

namespace {

constexpr Seconds kFrame{1.0 / 60};

} // namespace

/// The windows that are up at one time, driven by one timer.
class RasterStage::Show {
public:
    explicit Show(Scheduler& scheduler) : m_scheduler(scheduler) {}
    /// What windows and views took lies between other blocks of the heap, which would keep it.
    ~Show() {
        m_scheduler.post([] { malloc_trim(0); });
    }
    Show(const Show&) = delete;
    Show& operator=(const Show&) = delete;

    void add(RasterOverlayWindow& window) {
        m_windows.push_back(&window);
        window.refresh();
        if (m_frames) return;
        m_frames = m_scheduler.scheduleRepeatingTimer(kFrame, Seconds::zero(), [this] { step(); });
    }
    void remove(RasterOverlayWindow& window) { std::erase(m_windows, &window); }

private:
    void step() {
        for (RasterOverlayWindow* window : m_windows)
            window->refresh();
        if (std::ranges::all_of(m_windows, &RasterOverlayWindow::isOver)) m_frames.reset();
    }

    Scheduler& m_scheduler;
    std::vector<RasterOverlayWindow*> m_windows;
    TimerHandle m_frames;
};

class RasterStage::Place final : public OverlayWindow {
public:
    Place(std::shared_ptr<Show> show, std::unique_ptr<RasterOverlayWindow> window)
        : m_show(std::move(show))
        , m_window(std::move(window)) {
        m_show->add(*m_window);
    }
    ~Place() override { m_show->remove(*m_window); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

private:
    const std::shared_ptr<Show> m_show;
    const std::unique_ptr<RasterOverlayWindow> m_window;
};

RasterStage::RasterStage(const Clock& clock, Scheduler& scheduler, PanelHost& host)
    : m_clock(clock)
    , m_scheduler(scheduler)
    , m_host(host) {}

RasterStage::~RasterStage() = default;

std::unique_ptr<OverlayWindow> RasterStage::putUp(const QRect& frame,
                                                  std::unique_ptr<OverlayView> view) {
    QScreen* const screen = overlayscreens::withFrame(frame);
    if (!screen) return std::make_unique<OverlayWindow>();
    std::shared_ptr<Show> show = m_show.lock();
    if (!show) m_show = show = std::make_shared<Show>(m_scheduler);
    return std::make_unique<Place>(std::move(show), std::make_unique<RasterOverlayWindow>(
                                                        *screen, std::move(view), m_clock, m_host));
}

} // namespace vantle
