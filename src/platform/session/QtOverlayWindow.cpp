#include "platform/session/QtOverlayWindow.h"

#include "base/Clock.h"
#include "platform/PanelHost.h"
#include "platform/Screens.h"
#include "platform/WholeScreen.h"

#include <QImage>
#include <QPainter>

namespace vantle {

QtOverlayWindow::QtOverlayWindow(const QRect& frame, std::unique_ptr<OverlayView> view,
                                 const Clock& clock, const Screens& screens, PanelHost& host)
    : m_view(std::move(view))
    , m_clock(clock)
    , m_host(host) {
    wholescreen::cover(*this, frame, m_host);
    // Otherwise the window would move to another screen when its own is removed.
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
    draw();
}

/// Masks the window to what can be shown. Returns false when that is nothing.
bool QtOverlayWindow::takeShape() {
    QRegion shape; // empty means unmasked
    m_isSolid = !m_host.isComposited();
    if (m_isSolid) {
        shape = m_view->solidPart(size(), elapsed());
        if (shape.isEmpty()) return false;
    }
    if (shape != mask()) setMask(shape);
    return true;
}

void QtOverlayWindow::exposeEvent(QExposeEvent*) { draw(); }

void QtOverlayWindow::draw() {
    if (isOver() || !isExposed()) return;
    if (!m_store) m_store = std::make_unique<QBackingStore>(this);
    if (m_store->size() != size()) m_store->resize(size());
    // beginPaint() clears the region it gets; the whole store is painted anyway.
    m_store->beginPaint(QRect(0, 0, 1, 1));
    QPaintDevice& device = *m_store->paintDevice();
    auto* const picture =
        device.devType() == QInternal::Image ? static_cast<QImage*>(&device) : nullptr;
    if (picture != nullptr && picture->format() == QImage::Format_ARGB32_Premultiplied) {
        write(*picture);
    } else {
        QImage frame(size() * devicePixelRatio(), QImage::Format_ARGB32_Premultiplied);
        frame.setDevicePixelRatio(devicePixelRatio());
        write(frame);
        QPainter painter(&device);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(QPointF(), frame);
    }
    m_store->endPaint();
    m_store->flush(QRect(QPoint(), size()));
}

void QtOverlayWindow::write(QImage& frame) {
    if (m_isSolid)
        m_view->paintSolid(frame, elapsed());
    else
        m_view->paint(frame, elapsed());
}

void QtOverlayWindow::end() {
    m_view.reset();
    m_store.reset(); // frees a whole screen's memory
    destroy();
}

} // namespace vantle
