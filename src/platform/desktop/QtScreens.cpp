#include "platform/desktop/QtScreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace vantle {

QtScreens::QtScreens() {
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        follow(screen);
        Q_EMIT changed();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &Screens::changed);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &Screens::changed);
}

std::vector<ScreenShape> QtScreens::all() const {
    std::vector<ScreenShape> shapes;
    for (const QScreen* screen : QGuiApplication::screens()) // the primary one comes first
        shapes.push_back({.frame = QRectF(screen->geometry()),
                          .available = QRectF(screen->availableGeometry())});
    return shapes;
}

void QtScreens::follow(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &Screens::changed);
    connect(screen, &QScreen::availableGeometryChanged, this, &Screens::changed);
}

} // namespace vantle
