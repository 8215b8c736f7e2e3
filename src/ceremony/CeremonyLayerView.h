// The native show on one screen: the field of dots, the title pill and the caption over it.
#pragma once

#include "ceremony/show/FieldStretch.h"
#include "platform/OverlayView.h"

#include <QImage>

#include <memory>

class QPainter;

namespace vantle {

class CeremonyFrameRenderer;

/// The shake of the burst moves all three.
class CeremonyLayerView final : public OverlayView {
public:
    CeremonyLayerView(Date start, std::unique_ptr<CeremonyFrameRenderer> renderer);
    ~CeremonyLayerView() override;

    [[nodiscard]] const CeremonyFrameRenderer& renderer() const { return *m_renderer; }

    [[nodiscard]] Seconds endTime() const override;
    void paint(QImage& frame, Seconds t) override;
    /// The title alone, as it will stand: the show has no other part there, and its title would
    /// come 1.7 s after the press.
    void paintSolid(QImage& frame, Seconds t) override;
    /// The title pill, which has a ground of its own. Dots with nothing between them would make
    /// every window below draw itself anew, thousands of times.
    [[nodiscard]] QRegion solidPart(QSize size, Seconds t) const override;

private:
    /// The title and the caption in pixels of the frame, so that each is scaled but once.
    struct Words {
        double ratio = 0; ///< pixels a point
        QImage title;
        QImage caption;
    };

    void scaleWords(double ratio);
    /// The painter counts pixels, the size and the shake are points.
    void paintTitle(QPainter& painter, QSizeF size, QPointF shake, Seconds t) const;

    const std::unique_ptr<CeremonyFrameRenderer> m_renderer;
    FieldStretch m_stretch;
    Words m_words;
};

} // namespace vantle
