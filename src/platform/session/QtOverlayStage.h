// Overlays that are windows of the toolkit, painted by the processor.
#pragma once

#include "platform/OverlayStage.h"

#include <memory>

namespace vantle {

class Clock;
class PanelHost;
class Scheduler;
class Screens;

/// Up to 60 frames a second while a show runs, 30 from the moment that two in a row take too long,
/// and none otherwise. Without a compositor a translucent window is opaque black: there it is cut
/// down to the solid part of its view, and to nothing where that is empty.
class QtOverlayStage final : public OverlayStage {
public:
    /// All must outlive this.
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
    std::weak_ptr<Show> m_show; ///< what the windows have in common; ends with the last of them
};

} // namespace vantle
