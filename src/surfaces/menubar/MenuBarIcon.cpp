#include "surfaces/menubar/MenuBarIcon.h"

#include "surfaces/menubar/MenuBarDrawing.h"

#include <QPixmap>

namespace vantle {
namespace {

// In pixels: the design's 18 at scale 1 to 3, and other common tray sizes.
constexpr int kSizes[] = {16, 18, 22, 24, 32, 36, 48, 54};

template <typename Draw>
QIcon iconOf(Draw draw) {
    QIcon icon;
    for (const int pixels : kSizes)
        icon.addPixmap(QPixmap::fromImage(draw(pixels)));
    return icon;
}

} // namespace

const QIcon& MenuBarIcon::brick(bool open) {
    QIcon& icon = open ? m_open : m_brick;
    if (!icon.isNull()) return icon;
    icon = iconOf([open](int pixels) {
        const QImage brick = menubar::drawBrick(pixels);
        return open ? menubar::onPlate(brick) : brick;
    });
    icon.setIsMask(true);
    return icon;
}

QIcon MenuBarIcon::statusDot(std::uint32_t hexRGB, int phase, bool paused, bool open,
                             bool onLight) {
    const Key key{hexRGB, paused ? 0 : phase, paused, open, onLight};
    const auto known = m_dotCache.constFind(key);
    if (known != m_dotCache.constEnd()) return *known;
    QIcon icon = iconOf([&](int pixels) {
        const QImage dot =
            menubar::drawStatusDot(pixels, key.hexRGB, key.phase, key.paused, key.onLight);
        return key.open ? menubar::onPlate(dot) : dot;
    });
    m_dotCache.insert(key, icon);
    return icon;
}

} // namespace vantle
