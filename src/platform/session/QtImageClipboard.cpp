#include "platform/session/QtImageClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace vantle {

namespace {

const QString& pngFormat() {
    static const QString format = QStringLiteral("image/png");
    return format;
}

/// The format under which Qt takes an image to convert to others.
const QString& qtImageFormat() {
    static const QString format = QStringLiteral("application/x-qt-image");
    return format;
}

class PngMimeData final : public QMimeData {
public:
    explicit PngMimeData(QByteArray png) : m_png(std::move(png)) {}

    [[nodiscard]] QStringList formats() const override { return {pngFormat(), qtImageFormat()}; }

protected:
    [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType) const override {
        if (format == pngFormat()) return m_png;
        if (format == qtImageFormat()) return QImage::fromData(m_png, "PNG");
        return {};
    }

private:
    const QByteArray m_png;
};

} // namespace

void QtImageClipboard::copyPng(const QByteArray& png) {
    QGuiApplication::clipboard()->setMimeData(new PngMimeData(png));
}

} // namespace vantle
