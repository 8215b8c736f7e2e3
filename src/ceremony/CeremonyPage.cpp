#include "ceremony/CeremonyPage.h"

#include "ceremony/show/VantleCopy.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace vantle::ceremonypage {

namespace {

/// The end of a session never plays a page; it would be a full show there.
QString modeName(CeremonyShow show) {
    if (show.kind == CeremonyShow::Milestone) return QStringLiteral("milestone");
    return show.kind == CeremonyShow::Quick ? QStringLiteral("quick") : QStringLiteral("full");
}

QString hexText(std::uint32_t rgb) {
    return QStringLiteral("#%1").arg(rgb & 0xFFFFFFu, 6, 16, QLatin1Char('0')).toUpper();
}

/// Escapes characters that JSON allows but that end a line or a script element inside a script.
/// They occur only in strings, where an escape is valid.
QByteArray fitForScripts(const QByteArray& json) {
    QByteArray ascii;
    ascii.reserve(json.size());
    const QString text = QString::fromUtf8(json);
    for (const QChar unit : text) {
        if (unit.unicode() < 0x80 && unit != QLatin1Char('<'))
            ascii += unit.toLatin1();
        else
            ascii += QByteArrayLiteral("\\u") +
                     QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    }
    return ascii;
}

} // namespace

QByteArray configuration(CeremonyShow show, CeremonyVariant variant, std::uint32_t hexRGB,
                         const std::optional<QString>& skillName, bool blackout) {
    const QString title = vantlecopy::ceremonyTitle(skillName.value_or(QString()));
    if (!title.isValidUtf16()) return QByteArrayLiteral(R"({"title":"You are in Vantle"})");
    const bool isMilestone = show.kind == CeremonyShow::Milestone;
    const QJsonObject object{
        {QStringLiteral("variant"), QString(ceremonyvariant::name(variant))},
        {QStringLiteral("accent"), hexText(hexRGB)},
        // With reduced motion the fade plays, never a page.
        {QStringLiteral("reduced"), false},
        {QStringLiteral("mode"), modeName(show)},
        {QStringLiteral("milestone"),
         isMilestone ? static_cast<qint64>(std::max<std::int64_t>(show.hours, 1)) : qint64{0}},
        {QStringLiteral("title"), title},
        {QStringLiteral("blackout"), blackout},
    };
    return fitForScripts(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString script(const QByteArray& configuration) {
    return QStringLiteral("window.__CEREMONY = ") + QString::fromUtf8(configuration) +
           QLatin1Char(';');
}

Message messageOf(const QJsonValue& body) {
    const QString type = body.toObject()[QLatin1String("type")].toString();
    if (type == QLatin1String("started")) return Message::Started;
    if (type == QLatin1String("done")) return Message::Done;
    return Message::None;
}

bool mayLoad(const QString& page, const QUrl& address) {
    const QString scheme = address.scheme();
    if (scheme == QLatin1String("data") || scheme == QLatin1String("blob")) return true;
    if (scheme != QLatin1String("file") || !address.host().isEmpty()) return false;
    // An escaped separator reads as another path here than in the engine.
    const QString escaped = address.path(QUrl::FullyEncoded);
    for (const char* separator : {"%2F", "%5C", "%00"})
        if (escaped.contains(QLatin1String(separator), Qt::CaseInsensitive)) return false;
    const QString path = address.toLocalFile();
    if (path == page) return true;
    const QFileInfo file(path);
    // canonicalFilePath() is empty for a missing file, and thus outside every folder.
    return file.isFile() && file.canonicalFilePath().startsWith(
                                QFileInfo(page).dir().canonicalPath() + QLatin1Char('/'));
}

} // namespace vantle::ceremonypage
