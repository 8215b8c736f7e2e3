#include "vectors/FileImage.h"

#include <QJsonObject>
#include <QString>
#include <QStringDecoder>

namespace vantle::vectors {

std::optional<FileImage> imageFromJson(const QJsonValue& value) {
    if (!value.isObject()) return std::nullopt;
    const QJsonObject object = value.toObject();
    FileImage image;
    if (object.contains(QLatin1String("text")))
        image.bytes = object[QLatin1String("text")].toString().toUtf8();
    else
        image.bytes = QByteArray::fromBase64(object[QLatin1String("base64")].toString().toLatin1());
    if (object.contains(QLatin1String("mode")))
        image.mode = object[QLatin1String("mode")].toString().toInt(nullptr, 8);
    return image;
}

QJsonValue imageToJson(const std::optional<FileImage>& image) {
    if (!image) return QJsonValue::Null;
    // A byte order mark is a character of the file, not something to be dropped.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom);
    const QString text = decoder(image->bytes);
    QJsonObject object;
    if (!decoder.hasError() && text.toUtf8() == image->bytes)
        object[QLatin1String("text")] = text;
    else
        object[QLatin1String("base64")] = QString::fromLatin1(image->bytes.toBase64());
    object[QLatin1String("mode")] = QStringLiteral("%1").arg(image->mode, 4, 8, QLatin1Char('0'));
    return object;
}

} // namespace vantle::vectors
