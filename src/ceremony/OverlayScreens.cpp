#include "ceremony/OverlayScreens.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace vantle::overlayscreens {

namespace {

/// Only a window past the window manager's care lets clicks through to the window below, lies above
/// full-screen windows, and is on every workspace.
constexpr Qt::WindowFlags kFlags = Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                                   Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput |
                                   Qt::WindowDoesNotAcceptFocus;

} // namespace

QScreen* withFrame(const QRect& frame) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto screen = std::ranges::find(screens, frame, &QScreen::geometry);
    return screen == screens.end() ? nullptr : *screen;
}

void cover(QWindow& window, QScreen& screen) {
    QSurfaceFormat format = window.format();
    format.setAlphaBufferSize(8);
    window.setFormat(format);
    window.setFlags(kFlags);
    window.setTitle(QStringLiteral("Vantle ceremony"));
    window.setScreen(&screen);
    window.setGeometry(screen.geometry());
}

} // namespace vantle::overlayscreens
