#include "ceremony/CeremonyLayerView.h"

#include "ceremony/show/CeremonyFrameRenderer.h"
#include "ceremony/show/CeremonyTimeline.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace vantle {

namespace {

/// How far the middle of the caption is above the lower edge of the screen, in points.
constexpr double kCaptionHeight = 46;

/// Corner radius of the title pill, in points.
constexpr double kPillRadius = 20;

QRectF centredAt(QPointF centre, QSizeF size) {
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

QRectF titleRect(const CeremonyFrameRenderer& renderer, QSize size, Seconds t) {
    const QPointF centre(size.width() / 2.0, size.height() / 2.0 - renderer.titleRise(t.count()));
    return centredAt(centre, renderer.model().titleSize);
}

/// The moment whose title shows at `t` where the title is all there is.
Seconds solidTime(Seconds t) { return std::max(t, Seconds(ceremonytimeline::titleStands)); }

} // namespace

CeremonyLayerView::CeremonyLayerView(Date start, std::unique_ptr<CeremonyFrameRenderer> renderer)
    : OverlayView(start)
    , m_renderer(std::move(renderer)) {}

CeremonyLayerView::~CeremonyLayerView() = default;

Seconds CeremonyLayerView::endTime() const { return Seconds(CeremonyGridModel::endTime); }

void CeremonyLayerView::paint(QPainter& painter, QSize size, Seconds t) {
    if (t < Seconds::zero() || t >= endTime()) return;
    m_renderer->fillField(t.count());
    const auto shake = m_renderer->shakeOffset(t.count());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(shake.dx, shake.dy);
    paintField(painter);
    paintTitle(painter, size, t);
    const CeremonyGridModel& model = m_renderer->model();
    if (const double opacity = m_renderer->captionOpacity(t.count()); opacity > 0) {
        painter.setOpacity(opacity);
        const QPointF centre(size.width() / 2.0, size.height() - kCaptionHeight);
        painter.drawImage(centredAt(centre, model.captionSize), model.captionImage);
    }
}

void CeremonyLayerView::paintSolid(QPainter& painter, QSize size, Seconds t) {
    if (t < Seconds::zero() || t >= endTime()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintTitle(painter, size, solidTime(t));
}

void CeremonyLayerView::paintTitle(QPainter& painter, QSize size, Seconds t) {
    const double opacity = m_renderer->titleOpacity(t.count());
    if (opacity <= 0) return;
    painter.setOpacity(opacity);
    painter.drawImage(titleRect(*m_renderer, size, t), m_renderer->model().titleImage);
}

void CeremonyLayerView::paintField(QPainter& painter) {
    const int width = m_renderer->bufferWidth();
    const int height = m_renderer->bufferHeight();
    // Wraps the buffer without a copy.
    const QImage field(reinterpret_cast<const uchar*>(m_renderer->fieldBuffer().data()), width,
                       height, qsizetype{width} * 4, QImage::Format_ARGB32_Premultiplied);
    const double scale = m_renderer->bufferScale();
    // The ground is clear, so there is nothing to blend with, which is a good deal cheaper.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRectF(0, 0, width * scale, height * scale), field);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

QRegion CeremonyLayerView::solidPart(QSize size, Seconds t) const {
    const Seconds shown = solidTime(t);
    if (t < Seconds::zero() || m_renderer->titleOpacity(shown.count()) <= 0) return {};
    const QRect pill = titleRect(*m_renderer, size, shown).toRect();
    QPainterPath outline;
    outline.addRoundedRect(pill, kPillRadius, kPillRadius);
    return QRegion(outline.toFillPolygon().toPolygon());
}

} // namespace vantle
