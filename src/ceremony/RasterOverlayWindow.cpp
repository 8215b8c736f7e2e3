#include "ceremony/RasterOverlayWindow.h"

#include "base/Clock.h"
#include "ceremony/OverlayScreens.h"
#include "platform/PanelHost.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace vantle {

RasterOverlayWindow::RasterOverlayWindow(QScreen& screen, std::unique_ptr<OverlayView> view,
                                         const Clock& clock, PanelHost& host)
    : m_view(std::move(view))
    , m_clock(clock)
    , m_host(host) {
    overlayscreens::cover(*this, screen, m_host);
    // Left alone, the window would move to another screen when its own goes.
    connect(qApp, &QGuiApplication::screenRemoved, this, [this, &screen](QScreen* removed) {
        if (removed == &screen) end();
    });
    connect(&screen, &QScreen::geometryChanged, this, &RasterOverlayWindow::end);
}

RasterOverlayWindow::~RasterOverlayWindow() = default;

Seconds RasterOverlayWindow::elapsed() const { return m_clock.now() - m_view->start(); }

void RasterOverlayWindow::refresh() {
    if (isOver()) return;
    if (elapsed() >= m_view->endTime()) return end();
    if (!takeShape()) return hide();
    show();
    update();
}

/// Limits the window to what can be shown. False when that is nothing.
bool RasterOverlayWindow::takeShape() {
    QRegion shape; // empty: no limits
    m_isSolid = !m_host.isComposited();
    if (m_isSolid) {
        shape = m_view->solidPart(size(), elapsed());
        if (shape.isEmpty()) return false;
    }
    if (shape != mask()) setMask(shape);
    return true;
}

void RasterOverlayWindow::paintEvent(QPaintEvent*) {
    if (isOver()) return;
    QPainter painter(this);
    if (m_isSolid)
        m_view->paintSolid(painter, size(), elapsed());
    else
        m_view->paint(painter, size(), elapsed());
}

void RasterOverlayWindow::end() {
    m_view.reset();
    destroy(); // the picture of the window too
}

} // namespace vantle
