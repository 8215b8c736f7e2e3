#include "tracking/AppPaths.h"

#include "platform/FileSystem.h"
#include "platform/WholeFile.h"

#include <algorithm>
#include <cerrno>

namespace vantle {

namespace {

constexpr int kPrivateFile = 0600;
constexpr int kPrivateDirectory = 0700;

QString fileIn(const QString& directory, const QString& name) {
    return directory + QLatin1Char('/') + name;
}

QString directoryOf(const QString& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf(QLatin1Char('/')), 1));
}

} // namespace

AppPaths::AppPaths(FileSystem& fileSystem, QString baseDirectory)
    : m_fileSystem(fileSystem)
    , m_base(std::move(baseDirectory)) {}

QString AppPaths::supportDir() const {
    const QString primary = fileIn(m_base, QStringLiteral("Vantle"));
    if (m_fileSystem.exists(primary)) return primary;
    // Earlier versions used another name. Once the new directory exists the old one is never looked
    // at again, even when moving it failed.
    const QString old = fileIn(m_base, QStringLiteral("Hourfold"));
    if (m_fileSystem.exists(old) && m_fileSystem.rename(old, primary).ok()) return primary;
    // The directory above each new one is synced, since a power loss could otherwise remove it with
    // its content.
    QStringList holders{m_base};
    while (!m_fileSystem.exists(holders.last()) && holders.last().size() > 1)
        holders.append(directoryOf(holders.last()));
    if (m_fileSystem.makeDirectories(primary, std::nullopt))
        for (const QString& holder : holders)
            m_fileSystem.syncDirectory(holder).ignore();
    return primary;
}

QString AppPaths::sessionsFile() const {
    return fileIn(supportDir(), QStringLiteral("sessions.jsonl"));
}

QString AppPaths::openSessionMarker() const {
    return fileIn(supportDir(), QStringLiteral("open-session.json"));
}

QString AppPaths::skillsFile() const { return fileIn(supportDir(), QStringLiteral("skills.json")); }

QString AppPaths::autoRulesFile() const {
    return fileIn(supportDir(), QStringLiteral("auto-rules.json"));
}

QString AppPaths::corruptSessionsFile() const {
    return fileIn(supportDir(), QStringLiteral("corrupt-sessions.jsonl"));
}

QString AppPaths::instanceLock() const {
    return fileIn(supportDir(), QStringLiteral(".instance.lock"));
}

QStringList AppPaths::allDataFiles() const {
    return {sessionsFile(), openSessionMarker(), skillsFile(), autoRulesFile(),
            corruptSessionsFile()};
}

Result<> AppPaths::writeProtected(const QByteArray& data, const QString& path) const {
    return replaceFile(m_fileSystem, path, data);
}

Result<> AppPaths::removeIfPresent(const QString& path) const {
    // exists() is false in a directory that cannot be searched, so it is not asked first.
    auto removed = m_fileSystem.remove(path);
    if (removed) return removed;
    const int code = removed.error().code;
    // A read-only file system fails with EROFS for missing files too.
    if (code == ENOENT || code == ENOTDIR || (code == EROFS && !m_fileSystem.exists(path)))
        return {};
    return removed;
}

Result<> AppPaths::removeForGood(const QString& path) const {
    if (auto removed = removeIfPresent(path); !removed) return removed;
    m_fileSystem.syncDirectory(directoryOf(path)).ignore();
    return {};
}

void AppPaths::restrictToOwner(const QString& path) const {
    m_fileSystem.setMode(path, kPrivateFile).ignore();
}

void AppPaths::enforcePrivatePermissions() const {
    const QString directory = supportDir();
    m_fileSystem.setMode(directory, kPrivateDirectory).ignore();
    for (const QString& file : allDataFiles())
        if (m_fileSystem.exists(file)) restrictToOwner(file);
    removeIfPresent(fileIn(directory, QStringLiteral("sync-queue.json"))).ignore();
    removeHalfWrittenFiles(directory);
}

void AppPaths::removeHalfWrittenFiles(const QString& directory) const {
    const auto names = m_fileSystem.names(directory);
    if (!names) return;
    const QStringList targets = allDataFiles();
    for (const QString& name : names.value())
        if (targets.contains(fileIn(directory, temporaryFileTarget(name))))
            m_fileSystem.remove(fileIn(directory, name)).ignore();
}

} // namespace vantle
