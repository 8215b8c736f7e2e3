#include "platform/session/QtOverlayStage.h"

#include "base/Scheduler.h"
#include "platform/PanelHost.h"
#include "platform/WholeScreen.h"
#include "platform/session/QtOverlayWindow.h"

#include <algorithm>
#include <ctime>
#include <vector>

namespace vantle {

namespace {

constexpr Seconds kFrame{1.0 / 60};
/// The frame time when frames take too long: every second frame, evenly, instead of irregular
/// drops.
constexpr Seconds kSlowFrame{1.0 / 30};
/// The processor time for a frame on all screens. The rest is for the display server, which has as
/// much work.
constexpr Seconds kBudget{0.014};

/// Of this thread, so that other programs' load does not slow the show.
Seconds processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return Seconds(static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec));
}

} // namespace

/// The windows of one show, driven by one timer.
class QtOverlayStage::Show {
public:
    explicit Show(Scheduler& scheduler) : m_scheduler(scheduler) {}

    void add(QtOverlayWindow& window) {
        m_windows.push_back(&window);
        window.refresh();
        if (!m_frames) play(kFrame);
    }
    void remove(QtOverlayWindow& window) { std::erase(m_windows, &window); }

private:
    void play(Seconds frame) {
        m_frames = m_scheduler.scheduleRepeatingTimer(frame, Seconds::zero(), [this] { step(); });
    }
    void step() {
        const Seconds began = processorTime();
        for (QtOverlayWindow* window : m_windows)
            window->refresh();
        if (std::ranges::all_of(m_windows, &QtOverlayWindow::isOver)) return m_frames.reset();
        m_late = processorTime() - began > kBudget ? m_late + 1 : 0;
        if (m_late == 2) play(kSlowFrame);
    }

    Scheduler& m_scheduler;
    std::vector<QtOverlayWindow*> m_windows;
    TimerHandle m_frames;
    int m_late = 0; ///< consecutive frames over the budget
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
