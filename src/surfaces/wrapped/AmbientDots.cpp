#include "surfaces/wrapped/AmbientDots.h"

#include "surfaces/wrapped/AmbientDotPainter.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGOpacityNode>

#include <algorithm>
#include <cmath>
#include <memory>

namespace vantle {

namespace {

using wrappedmotion::AmbientDot;

const std::array<AmbientDot, wrappedmotion::ambientDots>& dots() {
    static const auto made = [] {
        std::array<AmbientDot, wrappedmotion::ambientDots> list;
        for (int i = 0; i < wrappedmotion::ambientDots; ++i)
            list[static_cast<std::size_t>(i)] = wrappedmotion::ambientDot(i);
        return list;
    }();
    return made;
}

constexpr double kQuietLight = 0.055; // opacity
constexpr double kQuietReach = 8;     // px from it
constexpr double kQuietEnd = 20;      // px from it, the end of the ramp to full light

/// Returns the distance in px from the point to the nearest quiet area, at most kQuietEnd.
double distance(QPointF point, const QList<QRectF>& quiet) {
    double nearest = kQuietEnd;
    for (const QRectF& area : quiet) {
        const double x = std::max({area.left() - point.x(), 0.0, point.x() - area.right()});
        const double y = std::max({area.top() - point.y(), 0.0, point.y() - area.bottom()});
        nearest = std::min(nearest, std::hypot(x, y));
    }
    return nearest;
}

/// Returns the highest light of the dot there, relative to its brightest.
double allowed(const AmbientDot& dot, QPointF point, const QList<QRectF>& quiet) {
    const double held = kQuietLight / ambientdot::strength(dot);
    const double way = (distance(point, quiet) - kQuietReach) / (kQuietEnd - kQuietReach);
    return held + (1 - held) * std::clamp(way, 0.0, 1.0);
}

/// An image with its own opacity.
class LitImage : public QSGOpacityNode {
public:
    LitImage(QQuickWindow& window, const QImage& image)
        : m_image(window.createImageNode())
        , m_size(image.deviceIndependentSize()) {
        m_image->setTexture(window.createTextureFromImage(image));
        m_image->setOwnsTexture(true);
        appendChildNode(m_image);
    }
    void show(QPointF corner, double opacity) {
        setOpacity(opacity);
        const QRectF rect(corner, m_size);
        if (m_image->rect() != rect) m_image->setRect(rect);
    }
    [[nodiscard]] QSizeF size() const { return m_size; }

private:
    QSGImageNode* m_image; // a child, deleted with this node
    QSizeF m_size;
};

/// The field at one scale.
class Field : public QSGNode {
public:
    Field(QQuickWindow& window, double scale)
        : m_scale(scale)
        , m_star(new LitImage(window, ambientdot::starImage(scale))) {
        for (std::size_t i = 0; i < m_dots.size(); ++i) {
            m_dots[i] = new LitImage(window, ambientdot::image(dots()[i], scale));
            appendChildNode(m_dots[i]);
        }
        appendChildNode(m_star);
        m_star->show({}, 0);
    }
    [[nodiscard]] double scale() const { return m_scale; }

    void show(const AmbientDots::Looks& looks) {
        for (std::size_t i = 0; i < looks.size(); ++i)
            m_dots[i]->show(looks[i].corner,
                            static_cast<double>(looks[i].light) / AmbientDots::lightSteps);
    }
    void show(const std::optional<ambientdot::Star>& star) {
        if (star)
            m_star->show(star->head - QPointF(m_star->size().width(), m_star->size().height()),
                         star->light);
        else
            m_star->setOpacity(0);
    }

private:
    double m_scale;
    std::array<LitImage*, wrappedmotion::ambientDots> m_dots{};
    LitImage* m_star;
};

} // namespace

AmbientDots::AmbientDots(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

double AmbientDots::scale() const { return window() ? window()->effectiveDevicePixelRatio() : 1.0; }

bool AmbientDots::hasStar() const { return wrappedmotion::shootingStar(m_seconds).has_value(); }

AmbientDots::Looks AmbientDots::looksAt(double seconds, QSizeF size, double scale,
                                        const QList<QRectF>& quiet) {
    Looks looks;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const AmbientDot& dot = dots()[i];
        const auto place = wrappedmotion::place(dot, size.width(), size.height(), seconds);
        const double edge = ambientdot::reach(dot);
        const auto snapped = [&](double at) { return std::round((at - edge) * scale) / scale; };
        const double darkest = ambientdot::darkest(dot);
        const double light = darkest + (1 - darkest) * place.twinkle;
        const double most = allowed(dot, {place.x, place.y}, quiet);
        looks[i] = {{snapped(place.x), snapped(place.y)},
                    std::min(static_cast<int>(std::lround(light * lightSteps)),
                             static_cast<int>(most * lightSteps))};
    }
    return looks;
}

bool AmbientDots::refresh() {
    const Looks looks = looksAt(m_seconds, size(), scale(), m_quiet);
    if (looks == m_looks) return false;
    m_looks = looks;
    return true;
}

void AmbientDots::setSeconds(double seconds) {
    if (m_seconds == seconds) return;
    const bool hadStar = hasStar();
    m_seconds = seconds;
    if (refresh() || hadStar || hasStar()) update();
    Q_EMIT secondsChanged();
}

void AmbientDots::setQuiet(const QList<QRectF>& quiet) {
    if (m_quiet == quiet) return;
    m_quiet = quiet;
    if (refresh()) update();
    Q_EMIT quietChanged();
}

QSGNode* AmbientDots::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    std::unique_ptr<Field> field(static_cast<Field*>(old));
    if (!field || field->scale() != scale()) field = std::make_unique<Field>(*window(), scale());
    field->show(m_looks);
    field->show(ambientdot::star(m_seconds, size()));
    return field.release();
}

void AmbientDots::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (refresh()) update();
}

void AmbientDots::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        if (refresh()) update();
    QQuickItem::itemChange(change, data);
}

} // namespace vantle
