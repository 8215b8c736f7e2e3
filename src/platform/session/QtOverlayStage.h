// The overlay stage of toolkit windows, painted by the processor.
#pragma once

#include "platform/OverlayStage.h"

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Scheduler;
class Screens;

/// Up to 60 frames a second during a show, 30 once two frames in a row take too long, none
/// otherwise. Without a compositor a translucent window is opaque black, so it is masked to the
/// solid part of its view, or hidden when that is empty. Main thread.
class QtOverlayStage final : public OverlayStage {
public:
    /// All must outlive this object.
    QtOverlayStage(const Clock& clock, Scheduler& scheduler, const Screens& screens,
                   PanelHost& host);
    ~QtOverlayStage() override;

    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] std::vector<QRect> frames() const override;
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override;

private:
    class Show;
    class Place;

    const Clock& m_clock;
    Scheduler& m_scheduler;
    const Screens& m_screens;
    PanelHost& m_host;
    std::weak_ptr<Show> m_show; ///< shared by the windows; ends with the last of them
};

} // namespace vantle
