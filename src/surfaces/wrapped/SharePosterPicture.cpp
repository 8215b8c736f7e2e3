#include "surfaces/wrapped/SharePosterPicture.h"

#include "surfaces/kit/tokens/Look.h"
#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include <QPainter>
#include <QPainterPath>

namespace vantle {

SharePosterPicture::SharePosterPicture(QQuickItem* parent) : BakedItem(parent) { wantHeight(); }

void SharePosterPicture::setPoster(const SharePoster& poster) {
    m_poster = poster;
    wantHeight();
    Q_EMIT changed();
}

void SharePosterPicture::wantHeight() {
    const QSizeF whole = shareposter::size(m_poster);
    setImplicitWidth(whole.width());
    setImplicitHeight(whole.height() * (width() > 0 ? width() / whole.width() : 1));
}

void SharePosterPicture::geometryChange(const QRectF& now, const QRectF& before) {
    BakedItem::geometryChange(now, before);
    if (now.width() != before.width()) wantHeight();
}

void SharePosterPicture::paint(QPainter& painter, double scale) {
    const double shrink = width() / shareposter::size(m_poster).width();
    painter.save();
    painter.scale(shrink, shrink);
    shareposter::draw(painter, m_poster, scale * shrink);
    painter.restore();
    if (m_radius > 0) drawEdge(painter);
}

void SharePosterPicture::drawEdge(QPainter& painter) {
    QPainterPath inside;
    inside.addRoundedRect(boundingRect(), m_radius, m_radius);
    QPainterPath all;
    all.addRect(boundingRect().marginsAdded({1, 1, 1, 1}));
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(all.subtracted(inside), Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    constexpr double kHalf = 0.5; // half of the hairline is inside
    painter.setPen(QPen(look::kDark.hairline.color(), 2 * kHalf));
    painter.drawRoundedRect(boundingRect().adjusted(kHalf, kHalf, -kHalf, -kHalf), m_radius - kHalf,
                            m_radius - kHalf);
}

} // namespace vantle
