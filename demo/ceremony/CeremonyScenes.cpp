#include "ceremony/CeremonyFrames.h"
#include "ceremony/CollapseRippleView.h"
#include "ceremony/ReducedMotionFadeView.h"
#include "gallery/Scenes.h"
#include "surfaces/kit/text/Typeface.h"
#include "surfaces/kit/tokens/Look.h"

#include <QPainter>

#include <array>

namespace vantle {

namespace {

constexpr QSize kScreen(1440, 900);
constexpr int kShrink = 3;  // pixels of the screen for one of the picture
constexpr int kColumns = 3; // of frames
constexpr int kGap = 8;     // px
constexpr int kLabel = 24;  // px below each frame
constexpr std::array kShowTimes = {0.45, 0.9, 1.45, 1.9, 2.9};
constexpr std::array kRingTimes = {0.05, 0.2, 0.35, 0.45, 0.55};
constexpr std::array kFadeTimes = {0.1, 0.2, 0.3, 0.6, 0.8};

using Times = std::array<double, 5>;

/// Small pictures of those moments with their times below.
template <typename Frame>
QImage sheet(const Times& times, Frame frame) {
    const QSize small = kScreen / kShrink;
    const int rows = (static_cast<int>(times.size()) + kColumns - 1) / kColumns;
    QImage image(kColumns * (small.width() + kGap) + kGap,
                 rows * (small.height() + kLabel + kGap) + kGap, QImage::Format_RGB32);
    image.fill(look::kDark.windowGround.color());
    QPainter painter(&image);
    painter.setFont(fontOf(look::kType.small));
    painter.setPen(look::kDark.textTertiary.color());
    for (int i = 0; i < static_cast<int>(times.size()); ++i) {
        const QPoint corner(kGap + i % kColumns * (small.width() + kGap),
                            kGap + i / kColumns * (small.height() + kLabel + kGap));
        const double t = times[static_cast<std::size_t>(i)];
        painter.drawImage(corner,
                          frame(t).scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        painter.drawText(corner + QPoint(0, small.height() + kLabel - kGap),
                         QStringLiteral("%1 s").arg(t, 0, 'f', 2));
    }
    return image;
}

Scene painted(const QString& name, std::function<QImage()> paint) {
    Scene made;
    made.name = QStringLiteral("ceremony-") + name;
    made.paint = [paint = std::move(paint)](double) { return paint(); };
    return made;
}

QImage show(CeremonyVariant variant) {
    CeremonyFrameRenderer renderer = demoShow(variant, kScreen, QStringLiteral("Design"));
    return sheet(kShowTimes, [&](double t) { return showFrame(renderer, t); });
}

template <typename View>
QImage overlay(const Times& times) {
    View view(Date{}, look::kDark.accent.rgb);
    return sheet(times, [&](double t) {
        QImage frame(kScreen, QImage::Format_ARGB32_Premultiplied);
        view.paint(frame, Seconds(t));
        QImage screen = darkDesktop(kScreen);
        QPainter(&screen).drawImage(0, 0, frame);
        return screen;
    });
}

} // namespace

QList<Scene> ceremonyScenes() {
    QList<Scene> scenes;
    for (const CeremonyVariant variant : ceremonyvariant::all)
        scenes << painted(ceremonyvariant::name(variant), [variant] { return show(variant); });
    return scenes << painted(QStringLiteral("ring"),
                             [] { return overlay<CollapseRippleView>(kRingTimes); })
                  << painted(QStringLiteral("fade"),
                             [] { return overlay<ReducedMotionFadeView>(kFadeTimes); });
}

} // namespace vantle
