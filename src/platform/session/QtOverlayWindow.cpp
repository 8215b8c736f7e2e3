#include "platform/session/QtOverlayWindow.h"

#include "base/Clock.h"
#include "platform/PanelHost.h"
#include "platform/Screens.h"
#include "platform/WholeScreen.h"

#include <QPainter>

namespace vantle {

QtOverlayWindow::QtOverlayWindow(const QRect& frame, std::unique_ptr<OverlayView> view,
                                 const Clock& clock, const Screens& screens, PanelHost& host)
    : m_view(std::move(view))
    , m_clock(clock)
    , m_host(host) {
    wholescreen::cover(*this, frame, m_host);
    // Left alone, the window would move to another screen when its own goes.
    connect(&screens, &Screens::changed, this, [this, &screens, frame] {
        if (!wholescreen::exists(screens, frame)) end();
    });
}

QtOverlayWindow::~QtOverlayWindow() = default;

Seconds QtOverlayWindow::elapsed() const { return m_clock.now() - m_view->start(); }

void QtOverlayWindow::refresh() {
    if (isOver()) return;
    if (elapsed() >= m_view->endTime()) return end();
    if (!takeShape()) return hide();
    show();
    update();
}

/// Limits the window to what can be shown. False when that is nothing.
bool QtOverlayWindow::takeShape() {
    QRegion shape; // empty: no limits
    m_isSolid = !m_host.isComposited();
    if (m_isSolid) {
        shape = m_view->solidPart(size(), elapsed());
        if (shape.isEmpty()) return false;
    }
    if (shape != mask()) setMask(shape);
    return true;
}

void QtOverlayWindow::paintEvent(QPaintEvent*) {
    if (isOver()) return;
    QPainter painter(this);
    if (m_isSolid)
        m_view->paintSolid(painter, size(), elapsed());
    else
        m_view->paint(painter, size(), elapsed());
}

void QtOverlayWindow::end() {
    m_view.reset();
    destroy(); // the picture of the window too
}

} // namespace vantle
