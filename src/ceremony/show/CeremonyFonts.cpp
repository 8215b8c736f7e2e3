#include "ceremony/show/CeremonyFonts.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>

namespace vantle::ceremonyfonts {

namespace {

/// The program's font, as in its windows, in points of the screen.
QFont systemFont(double size, QFont::Weight weight) {
    QFont font;
    font.setFamilies({QStringLiteral("Inter Display"), QStringLiteral("Inter"),
                      QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    return font;
}

} // namespace

void registerBundledFonts(const QStringList& resourceFolders) {
    for (const QString& folder : resourceFolders) {
        const QString file =
            QDir(folder).filePath(QLatin1String(titleResourceName) + QLatin1String(".ttf"));
        if (!QFile::exists(file)) continue;
        QFontDatabase::addApplicationFont(file);
        return;
    }
}

QString titleFamily() {
    for (const auto* family : {titlePostScriptName, titleFamilyName})
        if (QFontDatabase::hasFamily(QLatin1String(family))) return QLatin1String(family);
    return {};
}

QFont titleFont(double size) {
    const QString family = titleFamily();
    if (family.isEmpty()) return systemFont(size, QFont::ExtraBold);
    QFont font(family);
    font.setPixelSize(qRound(size));
    return font;
}

QFont captionFont(double size) { return systemFont(size, QFont::DemiBold); }

} // namespace vantle::ceremonyfonts
