#include "surfaces/welcome/Miniature.h"

#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace vantle {

Miniature::Miniature(QQuickItem* parent) : BakedItem(parent) {
    connect(this, &Miniature::changed, this, &Miniature::polish);
}

QMarginsF Miniature::bleed() const {
    const double room = m_margin * m_zoom;
    return {room, room, room, room};
}

void Miniature::updatePolish() {
    // Before drawing starts: the view's own drawing must not nest in it.
    m_picture = draw(window()->effectiveDevicePixelRatio());
    update();
}

QImage Miniature::draw(double scale) {
    QQmlComponent component(qmlEngine(this), m_source);
    const std::unique_ptr<QObject> made(component.createWithInitialProperties(
        {{QStringLiteral("samples"), QVariant::fromValue(m_samples)}}));
    auto* const view = qobject_cast<QQuickItem*>(made.get());
    if (view == nullptr) return {};
    QQuickRenderControl control;
    QQuickWindow room(&control);
    room.setColor(Qt::transparent);
    view->setParentItem(room.contentItem());
    view->setPosition({m_margin, m_margin});
    const QSizeF size = QSizeF(view->width(), view->height()) + QSizeF(2, 2) * m_margin;
    room.resize(size.toSize());
    setImplicitSize(view->width() * m_zoom, view->height() * m_zoom);

    // Edges are sharp at whole scales only, so it is drawn larger and scaled down. The scale
    // follows from the target.
    QImage ground(1, 1, QImage::Format_ARGB32_Premultiplied);
    auto target = QQuickRenderTarget::fromPaintDevice(&ground);
    target.setDevicePixelRatio(std::max(2.0, std::ceil(2 * m_zoom * scale)));
    room.setRenderTarget(target);
    QImage large = room.grabWindow();
    view->setParentItem(nullptr);
    large.setDevicePixelRatio(1);
    return large.scaled((size * m_zoom * scale).toSize(), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

void Miniature::paint(QPainter& painter, double scale) {
    if (m_picture.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF corner = -QPointF(m_margin, m_margin) * m_zoom;
    painter.drawImage(QRectF(corner, QSizeF(m_picture.size()) / scale), m_picture);
}

void Miniature::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) polish();
    BakedItem::itemChange(change, data);
}

} // namespace vantle
