#include "app/DataErase.h"

#include "app/ActionNote.h"
#include "app/SessionFlow.h"
#include "app/SessionSurfaces.h"
#include "app/SkillCommands.h"
#include "base/SerialQueue.h"
#include "base/Words.h"
#include "platform/FileSystem.h"
#include "platform/Preferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "tracking/AppPaths.h"

#include <QStringList>

namespace vantle {

namespace {

QString nameOf(const QString& path) { return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1); }

/// Removes every data file. Returns one text for each file that could not be removed.
QStringList removeDataFiles(const AppPaths& paths) {
    QStringList problems;
    for (const QString& file : paths.allDataFiles()) {
        const auto removed = paths.removeIfPresent(file);
        if (!removed)
            problems.append(
                QStringLiteral("%1: %2").arg(nameOf(file), removed.error().description()));
    }
    // Synced so that no erased file comes back after a power loss.
    paths.fileSystem().syncDirectory(paths.supportDir()).ignore();
    return problems;
}

QStringList remainingDataFiles(const AppPaths& paths) {
    QStringList problems;
    for (const QString& file : paths.allDataFiles())
        if (paths.fileSystem().exists(file))
            problems.append(Words::tr("%1 still exists").arg(nameOf(file)));
    return problems;
}

} // namespace

std::optional<QString> DataErase::run() {
    TrackerCore& tracker = m_env.flow.tracker();
    m_env.note.clear();
    // A pending offer would act on erased data.
    m_env.surfaces.dropOffers();
    tracker.discardOpenSessionForErase();
    m_env.autoSkill.eraseAllData();
    // A queued write would bring a removed file back.
    tracker.drainPendingIO();
    m_env.autoSkill.rules().drainPendingIO();
    QStringList problems = m_env.ioQueue.run([this] { return removeDataFiles(m_env.paths); });
    m_env.preferences.removeAll();
    m_env.skills.resetAfterErase();
    tracker.clearStorageError();
    m_env.autoSkill.refreshFromDefaults();
    m_env.flow.showIdlePrompt();
    tracker.notifySessionsChanged();
    problems += m_env.ioQueue.run([this] { return remainingDataFiles(m_env.paths); });
    if (problems.isEmpty()) {
        m_env.note.say(Words::tr("All local Vantle data was erased"));
        return std::nullopt;
    }
    const QString message = Words::tr("Some local data could not be erased: %1")
                                .arg(problems.join(QLatin1String("; ")));
    m_env.note.say(message);
    return message;
}

} // namespace vantle
