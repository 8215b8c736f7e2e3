#include "platform/session/QtScreens.h"

#include "platform/ReservedStrips.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace vantle {

namespace {

/// Returns the area without the strip, in the same px. A strip may extend across a screen between
/// its bar and the edge of the desktop; that screen stays whole.
QRectF without(const QRectF& area, Qt::Edge edge, const QRectF& strip) {
    QRectF left = area;
    if (!strip.intersects(area)) return area;
    if (edge == Qt::LeftEdge) left.setLeft(strip.right());
    if (edge == Qt::RightEdge) left.setRight(strip.left());
    if (edge == Qt::TopEdge) left.setTop(strip.bottom());
    if (edge == Qt::BottomEdge) left.setBottom(strip.top());
    const bool isBar = left.width() >= area.width() / 2 && left.height() >= area.height() / 2;
    return isBar ? left : area;
}

QRectF available(const QScreen& screen, const std::vector<ReservedStrip>& strips) {
    QRectF area(screen.availableGeometry());
    // A screen's origin is equal in device and logical px.
    const QPointF origin = screen.geometry().topLeft();
    const double ratio = screen.devicePixelRatio();
    for (const ReservedStrip& strip : strips) {
        const QRectF device(strip.area);
        area = without(area, strip.edge,
                       {origin + (device.topLeft() - origin) / ratio, device.size() / ratio});
    }
    return area;
}

} // namespace

QtScreens::QtScreens(ReservedStrips& strips, bool tellsPointer)
    : m_strips(strips)
    , m_tellsPointer(tellsPointer) {
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        follow(screen);
        Q_EMIT changed();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &Screens::changed);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &Screens::changed);
    connect(&m_strips, &ReservedStrips::changed, this, &Screens::changed);
}

std::vector<ScreenShape> QtScreens::all() const {
    const auto strips = m_strips.all();
    std::vector<ScreenShape> shapes;
    for (const QScreen* screen : QGuiApplication::screens()) // primary screen first
        shapes.push_back(
            {.frame = QRectF(screen->geometry()), .available = available(*screen, strips)});
    return shapes;
}

std::vector<ScreenShape> QtScreens::inUseFirst() const {
    auto shapes = all();
    if (shapes.size() < 2) return shapes;
    const QWindow* const active = QGuiApplication::focusWindow();
    const QScreen* const inUse = m_tellsPointer ? QGuiApplication::screenAt(QCursor::pos())
                                 : active       ? active->screen()
                                                : nullptr;
    return inUse != nullptr ? startingWith(QRectF(inUse->geometry()), std::move(shapes)) : shapes;
}

void QtScreens::follow(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &Screens::changed);
    connect(screen, &QScreen::availableGeometryChanged, this, &Screens::changed);
}

} // namespace vantle
