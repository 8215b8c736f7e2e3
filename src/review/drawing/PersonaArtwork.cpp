#include "review/drawing/PersonaArtwork.h"

#include <QFile>
#include <QHash>

namespace vantle::personaartwork {

QString searchPrefix() { return QStringLiteral("vantle"); }

QImage image(const QString& name) {
    static QHash<QString, QImage> known;
    if (name.isEmpty()) return {};
    const auto found = known.constFind(name);
    if (found != known.constEnd()) return *found;
    const QString file = searchPrefix() + QStringLiteral(":personas/%1.png").arg(name);
    return *known.insert(name, QFile::exists(file) ? QImage(file) : QImage());
}

} // namespace vantle::personaartwork
