// The native show on one screen: dots, title pill, caption.
#pragma once

#include "ceremony/show/FieldStretch.h"
#include "platform/OverlayView.h"

#include <QImage>

#include <memory>

class QPainter;

namespace vantle {

class CeremonyFrameRenderer;

/// The shake of the burst moves all three. Main thread.
class CeremonyLayerView final : public OverlayView {
public:
    CeremonyLayerView(Date start, std::unique_ptr<CeremonyFrameRenderer> renderer);
    ~CeremonyLayerView() override;

    [[nodiscard]] const CeremonyFrameRenderer& renderer() const { return *m_renderer; }

    [[nodiscard]] Seconds endTime() const override;
    void paint(QImage& frame, Seconds t) override;
    /// Paints only the title, in its final form: no other part of the show can be opaque, and the
    /// title would otherwise appear 1.7 s after the press.
    void paintSolid(QImage& frame, Seconds t) override;
    /// Returns the title pill, which has an opaque background. The dots are left out: a window
    /// shaped like thousands of dots makes every window below redraw constantly.
    [[nodiscard]] QRegion solidPart(QSize size, Seconds t) const override;

private:
    /// Title and caption in pixels of the frame, so that each is scaled only once.
    struct Words {
        double ratio = 0; ///< pixels per point
        QImage title;
        QImage caption;
    };

    void scaleWords(double ratio);
    /// Size and shake in points; the painter uses pixels.
    void paintTitle(QPainter& painter, QSizeF size, QPointF shake, Seconds t) const;

    const std::unique_ptr<CeremonyFrameRenderer> m_renderer;
    FieldStretch m_stretch;
    Words m_words;
};

} // namespace vantle
