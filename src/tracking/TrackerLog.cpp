// The tracker's operations on the log, and the recovery after a crash.
#include "base/Heap.h"
#include "base/SerialQueue.h"
#include "base/Words.h"
#include "platform/FileSystem.h"
#include "tracking/AppPaths.h"
#include "tracking/CrashRecovery.h"
#include "tracking/JsonForm.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr int kMaxManualMinutes = 960;

/// How long the records are kept after the last reading.
constexpr Seconds kLogKept{60};

QString warningFor(int unreadable) {
    return unreadable == 1 ? Words::tr("1 unreadable session record is preserved in the export but "
                                       "excluded from totals.")
                           : Words::tr("%n unreadable session records are preserved in the export "
                                       "but excluded from totals.",
                                       nullptr, unreadable);
}

} // namespace

bool TrackerCore::appendToLog(const Session& session) {
    const Result<> outcome = m_env.ioQueue.run([&] { return m_log.append(session); });
    if (!outcome) {
        noteStorageFailure(outcome.error());
        return false;
    }
    setStorageError(std::nullopt);
    notifySessionsChanged();
    return true;
}

SessionList TrackerCore::allSessions() {
    LogReader::Log log = m_env.ioQueue.run([this] { return m_reader.read(); });
    setDataWarning(log.unreadable > 0 ? std::optional(warningFor(log.unreadable)) : std::nullopt);
    m_forgetLog = m_env.scheduler.scheduleOnce(kLogKept, [this] {
        m_env.ioQueue.sync([this] { m_reader.forget(); });
        trimHeap();
    });
    return std::move(log.sessions);
}

bool TrackerCore::rewriteSession(const QUuid& id, const SessionLog::Transform& transform) {
    const Result<bool> outcome = m_env.ioQueue.run([&] { return m_log.rewrite(id, transform); });
    if (!outcome) {
        noteStorageFailure(outcome.error());
        return false;
    }
    if (!outcome.value()) return false;
    setStorageError(std::nullopt);
    notifySessionsChanged();
    return true;
}

bool TrackerCore::updateNote(const QUuid& sessionId, const QString& note) {
    return rewriteSession(sessionId, [cleaned = cleanedNote(note)](const Session& session) {
        Session changed = session;
        changed.note = cleaned;
        return std::optional(changed);
    });
}

bool TrackerCore::deleteSession(const QUuid& id) {
    return rewriteSession(id, [](const Session&) { return std::optional<Session>(); });
}

bool TrackerCore::logManual(const QString& skillId, int minutes, const QString& note) {
    if (minutes < 1 || !m_env.skills.contains(skillId)) return false;
    const std::int64_t seconds = std::int64_t{60} * std::min(minutes, kMaxManualMinutes);
    const Date now = m_env.clock.now();
    return appendToLog({QUuid::createUuid(), skillId, now - Seconds(static_cast<double>(seconds)),
                        now, seconds, cleanedNote(note), sourceManual()});
}

void TrackerCore::notifySessionsChanged() {
    m_env.scheduler.post([center = QPointer(&m_env.notifications)] {
        if (center) Q_EMIT center->HFSessionsChanged();
    });
}

void TrackerCore::noteStorageFailure(const Error& error) {
    setStorageError(Words::tr("Couldn’t save your hours. Check available disk space and folder "
                              "permissions, then try again. (%1)")
                        .arg(error.description()));
}

void TrackerCore::clearStorageError() { setStorageError(std::nullopt); }

void TrackerCore::drainPendingIO() { m_env.ioQueue.drain(); }

std::optional<OpenSessionMarker> TrackerCore::takeOrphanedMarker() {
    const auto bytes = m_env.ioQueue.run(
        [this] { return m_env.paths.fileSystem().readAll(m_env.paths.openSessionMarker()); });
    if (!bytes) return std::nullopt;
    auto marker = json::decodeMarker(bytes.value());
    // A marker without a candidate cannot be offered. The file of a good one stays until the user
    // has answered, so that a second crash loses nothing.
    if (marker && recovery::recoveryCandidate(*marker)) {
        m_orphanedMarker = bytes.value();
        return marker;
    }
    removeMarkerAndWait();
    return std::nullopt;
}

void TrackerCore::putBackOrphanedMarker() {
    if (m_state != State::Idle || !m_orphanedMarker) return;
    m_env.ioQueue.sync([this] {
        const QString file = m_env.paths.openSessionMarker();
        const auto present = m_env.paths.fileSystem().readAll(file);
        if (present && present.value() == *m_orphanedMarker) return;
        m_env.paths.writeProtected(*m_orphanedMarker, file).ignore();
    });
}

void TrackerCore::removeOrphanedMarker() {
    m_orphanedMarker.reset();
    // For good: what was discarded is not offered again.
    m_env.ioQueue.sync(
        [this] { m_env.paths.removeForGood(m_env.paths.openSessionMarker()).ignore(); });
}

std::optional<Session> TrackerCore::recoverSession(const OpenSessionMarker& marker) {
    const auto candidate = recovery::recoveryCandidate(marker);
    if (!candidate) return std::nullopt;
    // The crash may have come between logging the record and removing the marker.
    m_env.ioQueue.sync([this] { m_reader.forget(); }); // the whole file decides
    const SessionList sessions = allSessions();
    const auto logged = std::ranges::find(sessions, candidate->id, &Session::id);
    const bool isLogged = logged != sessions.end();
    if (!isLogged && !appendToLog(*candidate)) return std::nullopt;
    removeOrphanedMarker();
    return isLogged ? *logged : *candidate;
}

void TrackerCore::discardRecovery(const OpenSessionMarker&) { removeOrphanedMarker(); }

} // namespace vantle
