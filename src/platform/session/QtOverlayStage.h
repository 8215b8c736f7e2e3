// The ceremony's views in real windows, painted by the processor.
#pragma once

#include "platform/OverlayStage.h"

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Scheduler;

/// Up to 60 frames a second while a show runs and none otherwise; when the last window is gone, its
/// memory goes back to the system. Where nobody blends windows, one would be a black sheet: there
/// it is cut down to the solid part of its view, and to nothing where that is empty.
class QtOverlayStage final : public OverlayStage {
public:
    /// All must outlive this.
    QtOverlayStage(const Clock& clock, Scheduler& scheduler, PanelHost& host);
    ~QtOverlayStage() override;

    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override;

private:
    class Show;
    class Place;

    const Clock& m_clock;
    Scheduler& m_scheduler;
    PanelHost& m_host;
    std::weak_ptr<Show> m_show; ///< what the windows have in common; ends with the last of them
};

} // namespace vantle
