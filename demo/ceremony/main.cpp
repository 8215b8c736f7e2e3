// ceremony_frames <folder> [<width> <height> [<skill>]]: a picture of each script at several
// moments, as it looks over a dark desktop. The random numbers are the same at every run.
//
// Exit code 0 when every picture was written, 1 when one was not, 2 on wrong arguments.
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "fakes/SplitMixRandom.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <array>

namespace {

using namespace vantle;

constexpr std::array<double, 14> kMoments = {0.1, 0.25, 0.4, 0.52, 0.62, 0.8,  1.1,
                                             1.5, 1.8,  2.1, 2.4,  2.7,  2.88, 3.04};
constexpr double kCaptionHeight = 46; // points above the lower edge

/// Something with edges and light parts, as a desktop has them.
QImage desktop(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(0x1E, 0x24, 0x33));
    ground.setColorAt(1, QColor(0x10, 0x11, 0x18));
    painter.fillRect(image.rect(), ground);
    const QRectF window(size.width() * 0.08, size.height() * 0.12, size.width() * 0.5,
                        size.height() * 0.62);
    painter.fillRect(window, QColor(0x2B, 0x2F, 0x3A));
    painter.fillRect(QRectF(window.topLeft(), QSizeF(window.width(), 28)),
                     QColor(0x3A, 0x3F, 0x4C));
    painter.fillRect(
        QRectF(size.width() * 0.64, size.height() * 0.2, size.width() * 0.28, size.height() * 0.5),
        QColor(0xD9, 0xDC, 0xE2));
    return image;
}

/// An image with its centre at a point of the screen.
void drawCentered(QPainter& painter, const QImage& image, QPointF center, double opacity) {
    if (image.isNull() || opacity <= 0) return;
    const QSizeF size = image.deviceIndependentSize();
    painter.setOpacity(opacity);
    painter.drawImage(center - QPointF(size.width() / 2, size.height() / 2), image);
}

QImage frame(CeremonyFrameRenderer& renderer, double t) {
    const CeremonyGridModel& model = renderer.model();
    QImage screen = desktop(QSizeF(model.width, model.height).toSize());
    renderer.fillField(t);
    const QImage field(reinterpret_cast<const uchar*>(renderer.fieldBuffer().data()),
                       renderer.bufferWidth(), renderer.bufferHeight(),
                       QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&screen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const CeremonyShake::Offset shake = renderer.shakeOffset(t);
    painter.translate(shake.dx, shake.dy);
    painter.drawImage(QRectF(QPointF(), QSizeF(field.size()) * renderer.bufferScale()), field);
    drawCentered(painter, model.titleImage,
                 {model.width / 2, model.height / 2 - renderer.titleRise(t)},
                 renderer.titleOpacity(t));
    drawCentered(painter, model.captionImage, {model.width / 2, model.height - kCaptionHeight},
                 renderer.captionOpacity(t));
    return screen;
}

bool writeShow(CeremonyVariant variant, QSizeF size, const QString& skill, const QDir& folder) {
    constexpr std::uint64_t kSeed = 7;
    fakes::SplitMixRandom random(kSeed);
    CeremonyFrameRenderer renderer(CeremonyGridModel::build(variant, size, skill, random),
                                   PixelOrder::Bgra);
    bool written = true;
    for (const double t : kMoments) {
        const QString name =
            QStringLiteral("%1-%2.png").arg(ceremonyvariant::name(variant)).arg(t, 4, 'f', 2);
        written = frame(renderer, t).save(folder.filePath(name)) && written;
    }
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() == 3 || arguments.size() > 5) return 2;
    const QDir folder(arguments.at(1));
    QSizeF size(1440, 900);
    if (arguments.size() > 3) size = {arguments.at(2).toDouble(), arguments.at(3).toDouble()};
    const QString skill = arguments.value(4, QStringLiteral("Writing"));
    if (!folder.mkpath(QStringLiteral("."))) return 2;
    bool written = true;
    for (const CeremonyVariant variant : ceremonyvariant::all)
        written = writeShow(variant, size, skill, folder) && written;
    return written ? 0 : 1;
}
