// The erase of all data.
#include "app/AppModel.h"
#include "base/SerialQueue.h"
#include "platform/FileSystem.h"
#include "platform/Preferences.h"
#include "tracking/AppPaths.h"
#include "tracking/SkillList.h"

#include <utility>

namespace vantle {

namespace {

QString nameOf(const QString& path) { return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1); }

/// Removes every data file. What went wrong, one text a file.
QStringList removeDataFiles(const AppPaths& paths) {
    QStringList problems;
    for (const QString& file : paths.allDataFiles()) {
        const auto removed = paths.removeIfPresent(file);
        if (!removed)
            problems.append(
                QStringLiteral("%1: %2").arg(nameOf(file), removed.error().description()));
    }
    // So that nothing erased comes back after a power loss.
    paths.fileSystem().syncDirectory(paths.supportDir()).ignore();
    return problems;
}

QStringList remainingDataFiles(const AppPaths& paths) {
    QStringList problems;
    for (const QString& file : paths.allDataFiles())
        if (paths.fileSystem().exists(file))
            problems.append(QStringLiteral("%1 still exists").arg(nameOf(file)));
    return problems;
}

} // namespace

std::optional<QString> AppModel::eraseEverything() {
    setLastActionNote(std::nullopt);
    // A pending offer must not act on erased data.
    m_collaborators.recovery->hideForEviction();
    m_env.cardSlot.release(m_collaborators.recovery.get());
    m_collaborators.stopSummary->forgetNote();
    m_tracker.discardOpenSessionForErase();
    m_collaborators.autoSkill->eraseAllData();
    // Nothing that is queued may bring a file back after it was removed.
    m_tracker.drainPendingIO();
    m_collaborators.autoSkill->drainPendingIO();
    QStringList problems = m_env.ioQueue.run([this] { return removeDataFiles(m_env.paths); });
    m_env.preferences.removeAll();
    m_env.skills.resetAfterErase();
    publishSkills();
    const QString first = m_skills.front().id;
    if (std::exchange(m_selectedSkillId, first) != first) Q_EMIT selectedSkillIdChanged();
    m_tracker.clearStorageError();
    m_collaborators.autoSkill->refreshFromDefaults();
    showIdleNotchPrompt(false);
    m_tracker.notifySessionsChanged();
    problems += m_env.ioQueue.run([this] { return remainingDataFiles(m_env.paths); });
    if (problems.isEmpty()) {
        setLastActionNote(QStringLiteral("All local Vantle data was erased"));
        return std::nullopt;
    }
    const QString message = QStringLiteral("Some local data could not be erased: ") +
                            problems.join(QLatin1String("; "));
    setLastActionNote(message);
    return message;
}

} // namespace vantle
