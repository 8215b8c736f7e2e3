#include "ceremony/show/CeremonyTextImages.h"

#include "ceremony/show/CeremonyFonts.h"
#include "ceremony/show/CeremonyTextLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace vantle::ceremonytext {

namespace {

constexpr double kPixelsAPoint = 2;
constexpr double kCaptionSize = 11;
constexpr double kPillRadius = 20;
constexpr float kPillAlpha = 0.7F;
constexpr float kPillEdgeAlpha = 0.16F;

LineMetrics measured(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance(text), metrics.ascent(), metrics.descent()};
}

/// Keeps subpixel positions, so that letters are spaced as the font has them.
QFont unhinted(QFont font) {
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

void drawPill(QPainter& painter, const Layout& layout) {
    const QRectF inset(0.5, 0.5, layout.width - 1, layout.height - 1);
    QPainterPath pill;
    pill.addRoundedRect(inset, kPillRadius, kPillRadius);
    painter.fillPath(pill, QColor::fromRgbF(0, 0, 0, kPillAlpha));
    painter.strokePath(pill, QPen(QColor::fromRgbF(1, 1, 1, kPillEdgeAlpha), 1));
}

template <typename Ground>
TextImage drawn(const QString& text, const QFont& font, const Layout& layout, Ground ground) {
    QImage image(static_cast<int>(layout.width * kPixelsAPoint),
                 static_cast<int>(layout.height * kPixelsAPoint),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(kPixelsAPoint, kPixelsAPoint);
    ground(painter);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(layout.textX, layout.height - layout.textY), text);
    painter.end();
    image.setDevicePixelRatio(kPixelsAPoint);
    return {image, QSizeF(layout.width, layout.height)};
}

} // namespace

TextImage titleImage(const QString& title, double screenWidth) {
    const double size = titleFontSize(screenWidth);
    const QFont font = unhinted(ceremonyfonts::titleFont(size));
    const auto layout = titleLayout(size, measured(title, font));
    if (!layout) return {};
    return drawn(title, font, *layout, [&](QPainter& painter) { drawPill(painter, *layout); });
}

TextImage captionImage(const QString& caption) {
    const QFont font = unhinted(ceremonyfonts::captionFont(kCaptionSize));
    const auto layout = captionLayout(measured(caption, font));
    if (!layout) return {};
    return drawn(caption, font, *layout, [](QPainter&) {});
}

} // namespace vantle::ceremonytext
