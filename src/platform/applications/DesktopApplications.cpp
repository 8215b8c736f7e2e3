#include "platform/applications/DesktopApplications.h"

#include "platform/applications/ApplicationIdentity.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace vantle {

namespace {

/// Limit of watched folders; each costs a kernel watch.
constexpr qsizetype kMaxWatched = 64;

/// The nearest existing parent reports when a missing folder appears.
QString nearestExisting(QString path) {
    while (!path.isEmpty() && !QFileInfo::exists(path))
        path = path.section(QLatin1Char('/'), 0, -2);
    return path.isEmpty() ? QStringLiteral("/") : path;
}

QStringList watchedFor(const QStringList& folders) {
    QStringList watched;
    for (const QString& folder : folders) {
        watched.append(nearestExisting(folder));
        QDirIterator below(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (below.hasNext() && watched.size() < kMaxWatched)
            watched.append(below.next());
    }
    watched.removeDuplicates();
    return watched.first(qMin(watched.size(), kMaxWatched));
}

bool isWithin(const QString& path, const QString& folder) {
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

DesktopApplications::DesktopApplications(QStringList folders) : m_folders(std::move(folders)) {
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this,
            &DesktopApplications::handleChange);
}

QStringList DesktopApplications::standardFolders() {
    const auto absolute = [](const QString& path) { return path.startsWith(QLatin1Char('/')); };
    QString home = qEnvironmentVariable("XDG_DATA_HOME");
    if (!absolute(home)) home = QDir::homePath() + QStringLiteral("/.local/share");
    QString shared = qEnvironmentVariable("XDG_DATA_DIRS");
    if (shared.isEmpty()) shared = QStringLiteral("/usr/local/share:/usr/share");

    QStringList roots{home};
    roots += shared.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    // Sessions not started by a login shell often lack these.
    roots += {home + QStringLiteral("/flatpak/exports/share"),
              QStringLiteral("/var/lib/flatpak/exports/share"),
              QStringLiteral("/var/lib/snapd/desktop")};
    QStringList folders;
    for (const QString& root : roots)
        if (absolute(root)) folders.append(QDir::cleanPath(root + QStringLiteral("/applications")));
    folders.removeDuplicates();
    return folders;
}

Application DesktopApplications::identify(const WindowHints& hints) {
    if (!m_index) readAll();
    const ProcessScope scope =
        hints.processId ? ProcessScope::read(*hints.processId) : ProcessScope();
    return resolveIdentity(hints, scope, *m_index);
}

void DesktopApplications::handleChange(const QString& path) {
    const auto holds = [&](const QString& folder) { return isWithin(path, folder); };
    const auto appeared = [](const QString& folder) { return QFileInfo::exists(folder); };
    if (std::any_of(m_folders.cbegin(), m_folders.cend(), holds) ||
        std::any_of(m_missing.cbegin(), m_missing.cend(), appeared)) {
        m_index.reset();
        return;
    }
    // A folder beside a missing one appeared; it may be one of its parents.
    m_watcher.addPaths(watchedFor(m_missing));
}

void DesktopApplications::readAll() {
    ++m_timesRead;
    // Watches before reading, so that no change is missed.
    if (const QStringList former = m_watcher.directories(); !former.isEmpty())
        m_watcher.removePaths(former);
    m_watcher.addPaths(watchedFor(m_folders));
    m_missing.clear();
    for (const QString& folder : m_folders)
        if (!QFileInfo::exists(folder)) m_missing.append(folder);
    m_index = DesktopEntryIndex::read(m_folders);
}

} // namespace vantle
