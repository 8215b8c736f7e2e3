#include "platform/PanelHost.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace vantle {

namespace {

QRect coveredPart(const Placement& placement, bool hasInputRegions) {
    const QRect whole(QPoint(), placement.frame().size());
    if (hasInputRegions) return whole;
    if (placement.felt && !placement.felt->isEmpty()) return placement.felt->boundingRect();
    return placement.opaque.isEmpty() ? whole : placement.opaque.boundingRect();
}

} // namespace

Qt::WindowFlags PanelHost::flagsFor(const Placement& placement) const {
    const auto floating = Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    return placement.spot == Placement::Spot::WholeScreen
               ? floating | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus
               : floating;
}

QRect PanelHost::place(QWindow& window, const Placement& placement) {
    const QRect frame = placement.frame();
    const QRect part = coveredPart(placement, hasInputRegions());
    const bool isNew = window.handle() == nullptr;
    if (isNew) {
        window.setFlags(flagsFor(placement));
        // A window takes the scale of the screen that it covers.
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* screen : screens)
            if (placement.spot == Placement::Spot::WholeScreen && screen->geometry() == frame) {
                window.setScreen(screen);
                break;
            }
    }
    window.setGeometry(part.translated(frame.topLeft()));
    if (isNew) window.create();
    return part;
}

QPoint PanelHost::pointerIn(const QWindow& window) const {
    return window.mapFromGlobal(QCursor::pos());
}

} // namespace vantle
