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

QPointF titleCentre(const CeremonyFrameRenderer& renderer, QSizeF size, Seconds t) {
    return {size.width() / 2, size.height() / 2 - renderer.titleRise(t.count())};
}

QImage scaled(const QImage& image, QSizeF size, double ratio) {
    const QSize pixels = (size * ratio).toSize();
    if (image.isNull() || image.size() == pixels) return image;
    return image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Views the same memory with one pixel per point.
QImage pixelsOf(QImage& frame) {
    return {frame.bits(), frame.width(), frame.height(), frame.bytesPerLine(), frame.format()};
}

/// Snaps to whole pixels, where QPainter copies instead of scaling.
void drawAround(QPainter& painter, QPointF centre, const QImage& image) {
    painter.drawImage((centre - QRectF(image.rect()).center()).toPoint(), image);
}

/// Returns the time of the title to show when the title is all that plays.
Seconds solidTime(Seconds t) { return std::max(t, Seconds(ceremonytimeline::titleStands)); }

} // namespace

CeremonyLayerView::CeremonyLayerView(Date start, std::unique_ptr<CeremonyFrameRenderer> renderer)
    : OverlayView(start)
    , m_renderer(std::move(renderer)) {}

CeremonyLayerView::~CeremonyLayerView() = default;

Seconds CeremonyLayerView::endTime() const { return Seconds(CeremonyGridModel::endTime); }

void CeremonyLayerView::scaleWords(double ratio) {
    if (m_words.ratio == ratio) return;
    const CeremonyGridModel& model = m_renderer->model();
    m_words = {ratio, scaled(model.titleImage, model.titleSize, ratio),
               scaled(model.captionImage, model.captionSize, ratio)};
    m_words.title.setDevicePixelRatio(1);
    m_words.caption.setDevicePixelRatio(1);
}

void CeremonyLayerView::paint(QImage& frame, Seconds t) {
    if (t < Seconds::zero() || t >= endTime()) return frame.fill(Qt::transparent);
    m_renderer->fillField(t.count());
    const auto offset = m_renderer->shakeOffset(t.count());
    const QPointF shake(offset.dx, offset.dy);
    const double ratio = frame.devicePixelRatio();
    m_stretch.stretch(m_renderer->fieldBuffer(),
                      QSize(m_renderer->bufferWidth(), m_renderer->bufferHeight()),
                      m_renderer->bufferScale() * ratio, shake * ratio, frame);
    scaleWords(ratio);
    const QSizeF size = frame.deviceIndependentSize();
    QImage pixels = pixelsOf(frame);
    QPainter painter(&pixels);
    paintTitle(painter, size, shake, t);
    if (const double opacity = m_renderer->captionOpacity(t.count()); opacity > 0) {
        painter.setOpacity(opacity);
        const QPointF centre(size.width() / 2, size.height() - kCaptionHeight);
        drawAround(painter, (centre + shake) * ratio, m_words.caption);
    }
}

void CeremonyLayerView::paintSolid(QImage& frame, Seconds t) {
    frame.fill(Qt::transparent);
    if (t < Seconds::zero() || t >= endTime()) return;
    scaleWords(frame.devicePixelRatio());
    QImage pixels = pixelsOf(frame);
    QPainter painter(&pixels);
    paintTitle(painter, frame.deviceIndependentSize(), {}, solidTime(t));
}

void CeremonyLayerView::paintTitle(QPainter& painter, QSizeF size, QPointF shake, Seconds t) const {
    const double opacity = m_renderer->titleOpacity(t.count());
    if (opacity <= 0) return;
    painter.setOpacity(opacity);
    drawAround(painter, (titleCentre(*m_renderer, size, t) + shake) * m_words.ratio, m_words.title);
}

QRegion CeremonyLayerView::solidPart(QSize size, Seconds t) const {
    const Seconds shown = solidTime(t);
    if (t < Seconds::zero() || m_renderer->titleOpacity(shown.count()) <= 0) return {};
    const QSizeF title = m_renderer->model().titleSize;
    QRectF pill({}, title);
    pill.moveCenter(titleCentre(*m_renderer, size, shown));
    QPainterPath outline;
    outline.addRoundedRect(pill.toRect(), kPillRadius, kPillRadius);
    return QRegion(outline.toFillPolygon().toPolygon());
}

} // namespace vantle
