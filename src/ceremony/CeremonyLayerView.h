// The native show on one screen: the field of dots, the title pill and the caption over it.
#pragma once

#include "platform/OverlayView.h"

#include <memory>

namespace vantle {

class CeremonyFrameRenderer;

/// The shake of the burst moves all three.
class CeremonyLayerView final : public OverlayView {
public:
    CeremonyLayerView(Date start, std::unique_ptr<CeremonyFrameRenderer> renderer);
    ~CeremonyLayerView() override;

    [[nodiscard]] const CeremonyFrameRenderer& renderer() const { return *m_renderer; }

    [[nodiscard]] Seconds endTime() const override;
    void paint(QPainter& painter, QSize size, Seconds t) override;
    /// The title alone, as it will stand: the show has no other part there, and its title would
    /// come 1.7 s after the press.
    void paintSolid(QPainter& painter, QSize size, Seconds t) override;
    /// The title pill, which has a ground of its own. Dots with nothing between them would make
    /// every window below draw itself anew, thousands of times.
    [[nodiscard]] QRegion solidPart(QSize size, Seconds t) const override;

private:
    void paintField(QPainter& painter);
    void paintTitle(QPainter& painter, QSize size, Seconds t);

    const std::unique_ptr<CeremonyFrameRenderer> m_renderer;
};

} // namespace vantle
