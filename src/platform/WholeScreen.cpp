#include "platform/WholeScreen.h"

#include "platform/PanelHost.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace vantle::wholescreen {

QScreen* withFrame(const QRect& frame) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto screen = std::ranges::find(screens, frame, &QScreen::geometry);
    return screen == screens.end() ? nullptr : *screen;
}

void cover(QWindow& window, const QScreen& screen, PanelHost& host) {
    QSurfaceFormat format = window.format();
    format.setAlphaBufferSize(8);
    window.setFormat(format);
    window.setTitle(QStringLiteral("Vantle ceremony"));
    const QRectF frame = screen.geometry();
    (void)host.place(window, {.spot = Placement::Spot::WholeScreen,
                              .screen = {.frame = frame, .available = frame},
                              .felt = QRegion()});
}

} // namespace vantle::wholescreen
