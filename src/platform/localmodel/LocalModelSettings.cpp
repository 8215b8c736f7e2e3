#include "platform/localmodel/LocalModelSettings.h"

#include <QByteArray>
#include <QStringDecoder>
#include <QStringList>

#include <sys/un.h>

namespace vantle {

namespace {

/// The longest socket path, including the terminating zero.
constexpr qsizetype kAddressSize = sizeof(sockaddr_un::sun_path);

bool canBeASocket(const QString& path) {
    return path.startsWith(QLatin1Char('/')) && path.toUtf8().size() < kAddressSize;
}

} // namespace

std::optional<LocalModelSettings> LocalModelSettings::parse(QByteArrayView content) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(content);
    if (content.size() > maxFileSize || utf8.hasError() || text.contains(QChar(0)))
        return std::nullopt;

    LocalModelSettings settings;
    for (const QString& rawLine : text.split(QLatin1Char('\n'))) {
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0) return std::nullopt;
        const QString key = line.first(equals).trimmed();
        const QString value = line.sliced(equals + 1).trimmed();
        if (key == QLatin1String("socket"))
            settings.socket = value;
        else if (key == QLatin1String("model"))
            settings.model = value;
        else
            return std::nullopt;
    }
    if (!canBeASocket(settings.socket)) return std::nullopt;
    return settings;
}

} // namespace vantle
