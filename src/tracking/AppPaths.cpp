#include "tracking/AppPaths.h"

#include "platform/FileSystem.h"
#include "platform/WholeFile.h"

namespace vantle {

namespace {

constexpr int kPrivateFile = 0600;
constexpr int kPrivateDirectory = 0700;

QString fileIn(const QString& directory, QLatin1String name) {
    return directory + QLatin1Char('/') + name;
}

} // namespace

AppPaths::AppPaths(FileSystem& fileSystem, QString baseDirectory)
    : m_fileSystem(fileSystem)
    , m_base(std::move(baseDirectory)) {}

QString AppPaths::supportDir() const {
    const QString primary = fileIn(m_base, QLatin1String("Vantle"));
    if (m_fileSystem.exists(primary)) return primary;
    // Earlier versions used another name. Once the new directory exists the old one is never looked
    // at again, even when moving it failed.
    const QString old = fileIn(m_base, QLatin1String("Hourfold"));
    if (m_fileSystem.exists(old) && m_fileSystem.rename(old, primary).ok()) return primary;
    // Synced, since a power loss could otherwise remove the new directory with its content.
    if (m_fileSystem.makeDirectories(primary, std::nullopt))
        m_fileSystem.syncDirectory(m_base).ignore();
    return primary;
}

QString AppPaths::sessionsFile() const {
    return fileIn(supportDir(), QLatin1String("sessions.jsonl"));
}

QString AppPaths::openSessionMarker() const {
    return fileIn(supportDir(), QLatin1String("open-session.json"));
}

QString AppPaths::skillsFile() const { return fileIn(supportDir(), QLatin1String("skills.json")); }

QString AppPaths::autoRulesFile() const {
    return fileIn(supportDir(), QLatin1String("auto-rules.json"));
}

QString AppPaths::corruptSessionsFile() const {
    return fileIn(supportDir(), QLatin1String("corrupt-sessions.jsonl"));
}

QString AppPaths::instanceLock() const {
    return fileIn(supportDir(), QLatin1String(".instance.lock"));
}

QStringList AppPaths::allDataFiles() const {
    return {sessionsFile(), openSessionMarker(), skillsFile(), autoRulesFile(),
            corruptSessionsFile()};
}

Result<> AppPaths::writeProtected(const QByteArray& data, const QString& path) const {
    return replaceFile(m_fileSystem, path, data);
}

Result<> AppPaths::removeIfPresent(const QString& path) const {
    if (!m_fileSystem.exists(path)) return {};
    return m_fileSystem.remove(path);
}

void AppPaths::restrictToOwner(const QString& path) const {
    m_fileSystem.setMode(path, kPrivateFile).ignore();
}

void AppPaths::enforcePrivatePermissions() const {
    const QString directory = supportDir();
    m_fileSystem.setMode(directory, kPrivateDirectory).ignore();
    for (const QString& file : allDataFiles())
        if (m_fileSystem.exists(file)) restrictToOwner(file);
    removeIfPresent(fileIn(directory, QLatin1String("sync-queue.json"))).ignore();
}

} // namespace vantle
