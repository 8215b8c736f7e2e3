#include "tracking/TrackerCore.h"

#include "base/Rounding.h"
#include "base/SerialQueue.h"
#include "base/Words.h"
#include "platform/Preferences.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr Seconds kTickInterval{1.0};
constexpr Seconds kTickTolerance{0.2};
constexpr int kTicksBetweenMarkers = 60;
constexpr Seconds kWelcomeBackTime{60.0};

Seconds minutesAsSeconds(int minutes) { return Seconds(60.0 * minutes); }

} // namespace

TrackerCore::TrackerCore(const Environment& environment)
    : m_env(environment)
    , m_log(environment.paths)
    , m_reader(environment.paths)
    , m_missed(environment.clock, kTickInterval) {
    if (!m_env.encodeMarker)
        m_env.encodeMarker = [](const OpenSessionMarker& marker) { return json::encode(marker); };
}

TrackerCore::~TrackerCore() = default;

Date TrackerCore::countedUntil() const {
    // Sleep of the machine must not count even when a stop precedes the first tick after it.
    const auto missed = m_missed.sinceLastLook();
    return missed ? std::min(missed->from, m_env.clock.now()) : m_env.clock.now();
}

double TrackerCore::currentActiveSeconds() const {
    double seconds = m_accumulatedSeconds;
    if (m_state == State::Running && m_segmentStart)
        seconds += (countedUntil() - *m_segmentStart).count();
    return seconds;
}

std::int64_t TrackerCore::roundedActiveSeconds() const {
    return std::max<std::int64_t>(roundedToInteger(currentActiveSeconds()), 0);
}

std::int64_t TrackerCore::displayActiveSeconds() const {
    // A running clock shows completed seconds, so it rounds down where records round to nearest.
    return std::max<std::int64_t>(truncatedToInteger(currentActiveSeconds()), 0);
}

std::optional<int> TrackerCore::start(const Skill& skill, int backfillMinutes) {
    if (m_state != State::Idle) return std::nullopt;
    const bool confirmed = backfillMinutes >= 1 && backfillMinutes <= maxBackfillMinutes &&
                           m_idleMonitor && m_idleMonitor->wasActiveForLast(backfillMinutes);
    const int applied = confirmed ? backfillMinutes : 0;
    if (!open(skill, m_env.clock.now(), applied)) return std::nullopt;
    return applied;
}

bool TrackerCore::startAfter(const Session& ended, const Skill& skill) {
    if (m_state != State::Idle) return false;
    const Date now = m_env.clock.now();
    return open(skill, m_missed.sinceLastLook() ? now : std::min(ended.endedAt, now), 0);
}

bool TrackerCore::open(const Skill& skill, Date from, int backfillMinutes) {
    m_sessionId = QUuid::createUuid();
    m_accumulatedSeconds = minutesAsSeconds(backfillMinutes).count();
    m_segmentStart = from;
    m_lastKnownGoodAt = m_env.clock.now();
    m_missed.look();
    m_currentSkillId = skill.id;
    m_startedAt = from - minutesAsSeconds(backfillMinutes);
    m_state = State::Running;
    // The marker before anything is told: what views do on the signals, and the file of the
    // preferences, would only delay it.
    const bool hasMarker = writeMarker();
    Q_EMIT currentSkillIdChanged();
    Q_EMIT startedAtChanged();
    Q_EMIT stateChanged();
    settings::lastUsedSkill.write(m_env.preferences, skill.id);
    startTicking();
    if (!hasMarker) {
        resetToIdle();
        return false;
    }
    if (onSessionStarted) onSessionStarted(skill, *m_startedAt);
    return true;
}

void TrackerCore::startTicking() {
    m_tickTimer =
        m_env.scheduler.scheduleRepeatingTimer(kTickInterval, kTickTolerance, [this] { tick(); });
}

void TrackerCore::tick() {
    if (const auto missed = m_missed.sinceLastLook()) {
        pause(missed->from);
        resume();
        return;
    }
    m_missed.look();
    const Date now = m_env.clock.now();
    if (m_state == State::Running) m_lastKnownGoodAt = now;
    if (m_welcomeBackShownAt && now - *m_welcomeBackShownAt >= kWelcomeBackTime)
        setWelcomeBack(std::nullopt, std::nullopt);
    if (++m_ticksSinceMarkerWrite >= kTicksBetweenMarkers) writeMarker();
}

void TrackerCore::pause(Date date) {
    if (m_state != State::Running) return;
    if (m_segmentStart) {
        // Limited to the segment and to the past. When the clock was set back since the segment
        // began, the cut is now and removes seconds.
        const Date cut = std::min(std::max(*m_segmentStart, date), countedUntil());
        m_accumulatedSeconds += (cut - *m_segmentStart).count();
        m_lastKnownGoodAt = cut;
    }
    m_segmentStart.reset();
    setState(State::Paused);
    setWelcomeBack(std::nullopt, std::nullopt);
    writeMarker();
    m_tickTimer.reset();
}

void TrackerCore::resume() {
    if (m_state != State::Paused) return;
    const Date now = m_env.clock.now();
    if (m_lastKnownGoodAt) {
        const std::int64_t minutes = roundedToInteger((now - *m_lastKnownGoodAt).count() / 60.0);
        setWelcomeBack(Words::tr("welcome back, paused %1m").arg(minutes), now);
    }
    m_segmentStart = now;
    m_lastKnownGoodAt = now;
    m_missed.look();
    setState(State::Running);
    writeMarker();
    startTicking();
}

std::optional<Session> TrackerCore::stop() {
    if (m_state == State::Idle || !m_currentSkillId || !m_startedAt) return std::nullopt;
    const Session session{m_sessionId ? *m_sessionId : QUuid::createUuid(),
                          *m_currentSkillId,
                          *m_startedAt,
                          m_env.clock.now(),
                          roundedActiveSeconds(),
                          QString(),
                          sourceApp()};
    if (!appendToLog(session)) return std::nullopt;
    removeMarkerAndWait();
    resetToIdle();
    if (onSessionEnded) onSessionEnded(session);
    return session;
}

bool TrackerCore::applyBackfill(int minutes) {
    if (m_state == State::Idle || !m_startedAt || minutes < 1 || minutes > maxBackfillMinutes)
        return false;
    const double elapsed = (m_env.clock.now() - *m_startedAt).count() / 60.0;
    // The evidence must cover everything from the new start up to now.
    const auto asked =
        std::clamp<std::int64_t>(truncatedToInteger(std::ceil(elapsed) + minutes),
                                 std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (!m_idleMonitor || !m_idleMonitor->wasActiveForLast(static_cast<int>(asked))) return false;
    setStartedAt(*m_startedAt - minutesAsSeconds(minutes));
    m_accumulatedSeconds += minutesAsSeconds(minutes).count();
    writeMarker();
    return true;
}

void TrackerCore::discardOpenSessionForErase() {
    m_orphanedMarker.reset();
    resetToIdle();
}

void TrackerCore::debugAdvance(double seconds) {
    if (m_state != State::Idle && seconds > 0) m_accumulatedSeconds += seconds;
}

bool TrackerCore::writeMarker() {
    m_ticksSinceMarkerWrite = 0;
    if (m_state == State::Idle || !m_currentSkillId || !m_startedAt) return false;
    const OpenSessionMarker marker{m_sessionId ? *m_sessionId : QUuid::createUuid(),
                                   *m_currentSkillId, *m_startedAt, roundedActiveSeconds(),
                                   m_lastKnownGoodAt.value_or(m_env.clock.now())};
    auto encoded = m_env.encodeMarker(marker);
    if (!encoded) {
        noteStorageFailure(encoded.error());
        return false;
    }
    m_env.ioQueue.async([data = encoded.value(), &paths = m_env.paths, &scheduler = m_env.scheduler,
                         self = QPointer(this)] {
        const auto written = paths.writeProtected(data, paths.openSessionMarker());
        if (written) return;
        scheduler.post([self, error = written.error()] {
            if (self) self->noteStorageFailure(error);
        });
    });
    // Only queued so far; a later write failure sets it again.
    setStorageError(std::nullopt);
    return true;
}

void TrackerCore::removeMarkerAndWait() {
    m_env.ioQueue.sync([this] {
        const QString file = m_env.paths.openSessionMarker();
        if (m_orphanedMarker && m_env.paths.writeProtected(*m_orphanedMarker, file)) return;
        m_env.paths.removeIfPresent(file).ignore();
    });
}

void TrackerCore::resetToIdle() {
    m_tickTimer.reset();
    m_sessionId.reset();
    m_segmentStart.reset();
    m_lastKnownGoodAt.reset();
    m_accumulatedSeconds = 0;
    setCurrentSkillId(std::nullopt);
    setStartedAt(std::nullopt);
    setWelcomeBack(std::nullopt, std::nullopt);
    setState(State::Idle);
}

TrackerCore::Internals TrackerCore::internals() const {
    return {m_accumulatedSeconds, m_segmentStart, m_lastKnownGoodAt, m_ticksSinceMarkerWrite,
            m_tickTimer != nullptr};
}

void TrackerCore::setState(State state) {
    if (std::exchange(m_state, state) != state) Q_EMIT stateChanged();
}

void TrackerCore::setCurrentSkillId(std::optional<QString> id) {
    if (m_currentSkillId == id) return;
    m_currentSkillId = std::move(id);
    Q_EMIT currentSkillIdChanged();
}

void TrackerCore::setStartedAt(std::optional<Date> date) {
    if (std::exchange(m_startedAt, date) != date) Q_EMIT startedAtChanged();
}

void TrackerCore::setStorageError(std::optional<QString> text) {
    if (m_storageError == text) return;
    m_storageError = std::move(text);
    Q_EMIT storageErrorChanged();
}

void TrackerCore::setDataWarning(std::optional<QString> text) {
    if (m_dataWarning == text) return;
    m_dataWarning = std::move(text);
    Q_EMIT dataWarningChanged();
}

void TrackerCore::setWelcomeBack(std::optional<QString> text, std::optional<Date> shownAt) {
    m_welcomeBackShownAt = shownAt;
    if (m_welcomeBack == text) return;
    m_welcomeBack = std::move(text);
    Q_EMIT welcomeBackChanged();
}

} // namespace vantle
