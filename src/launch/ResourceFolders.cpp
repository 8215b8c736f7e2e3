#include "launch/ResourceFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace vantle::resourcefolders {

QStringList all() {
    QStringList folders{QDir::cleanPath(ofProgram() + QStringLiteral("/../share/vantle"))};
#ifdef VANTLE_SOURCE_RESOURCES
    folders << QStringLiteral(VANTLE_SOURCE_RESOURCES);
#endif
    return folders;
}

QString find(const QString& name) {
    for (const QString& folder : all())
        if (const QFileInfo file(folder + QLatin1Char('/') + name); file.isFile())
            return file.absoluteFilePath();
    return {};
}

QString ofProgram() {
    // Evaluated once: an upgrade may replace the file while the program runs.
    static const QString folder = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    return folder;
}

} // namespace vantle::resourcefolders
