#include "gallery/Scenes.h"
#include "surfaces/kit/text/Typeface.h"
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/menubar/MenuBarDrawing.h"
#include "tracking/Skill.h"

#include <QPainter>

#include <array>
#include <cmath>

namespace vantle {

namespace {

using menubar::drawBrick;
using menubar::drawStatusDot;
using menubar::onPlate;

constexpr std::array kSizes = {16, 18, 22, 24};
constexpr int kRow = 40;     // px
constexpr int kCell = 40;    // px
constexpr int kMargin = 24;  // px
constexpr int kLegend = 48;  // px, the size of the images in a row
constexpr int kColumns = 13; // the wall, eight phases, paused, and three of them on their plates
constexpr QColor kDarkBar(0x15, 0x16, 0x1A);
constexpr QColor kLightBar(0xE8, 0xE9, 0xED);

QImage inInk(QImage shape, bool onLight) {
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), onLight ? look::kDark.ink.color() : QColor(Qt::white));
    painter.end();
    return shape;
}

/// The images of a row, in that many pixels.
QList<QImage> images(int pixels, bool onLight, std::uint32_t color) {
    constexpr int kFullest = 2;
    QList<QImage> list{inInk(drawBrick(pixels), onLight)};
    for (int phase = 0; phase < menubar::kPhases; ++phase)
        list << drawStatusDot(pixels, color, phase, false, onLight);
    const QImage paused = drawStatusDot(pixels, color, 0, true, onLight);
    return list << paused << inInk(onPlate(drawBrick(pixels)), onLight)
                << onPlate(drawStatusDot(pixels, color, kFullest, false, onLight))
                << onPlate(paused);
}

void drawBar(QPainter& painter, int top, int size, bool onLight, const Skill& skill, double scale) {
    const QRectF bar(kMargin + kLegend, top, kColumns * kCell, kRow - 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(onLight ? kLightBar : kDarkBar);
    painter.drawRoundedRect(bar, 8, 8);
    painter.setPen(look::kDark.textTertiary.color());
    painter.drawText(QRectF(kMargin, top, kLegend, bar.height()), Qt::AlignVCenter,
                     QStringLiteral("%1 px").arg(size));
    const int pixels = static_cast<int>(std::lround(size * scale));
    double left = bar.left() + (kCell - size) / 2.0;
    for (QImage& image : images(pixels, onLight, skill.hexRGB)) {
        image.setDevicePixelRatio(scale);
        painter.drawImage(QPointF(left, top + (bar.height() - size) / 2), image);
        left += kCell;
    }
}

QImage draw(double scale) {
    const int rows = 2 * static_cast<int>(kSizes.size());
    const QSize size(2 * kMargin + kLegend + kColumns * kCell, 2 * kMargin + rows * kRow);
    QImage image(size * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(look::kDark.windowGround.color());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(fontOf(look::kType.small));
    const auto skills = Skill::defaults();
    int top = kMargin;
    for (std::size_t i = 0; i < kSizes.size(); ++i)
        for (const bool onLight : {false, true}) {
            drawBar(painter, top, kSizes[i], onLight, skills[i], scale);
            top += kRow;
        }
    return image;
}

} // namespace

QList<Scene> trayScenes() {
    Scene tray;
    tray.name = QStringLiteral("tray");
    tray.paint = draw;
    tray.twice = true;
    return {tray};
}

} // namespace vantle
