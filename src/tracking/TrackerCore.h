// The tracker: the state of the session and its counted time.
//
// Keeps the marker on disk current, and turns a finished session into a record of the log.
#pragma once

#include "base/Clock.h"
#include "base/MissedTime.h"
#include "base/Result.h"
#include "base/Scheduler.h"
#include "tracking/ActivityEvidence.h"
#include "tracking/LogReader.h"
#include "tracking/Session.h"
#include "tracking/SessionList.h"
#include "tracking/SessionLog.h"
#include "tracking/Skill.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

class AppPaths;
class NotificationCenter;
class Preferences;
class SerialQueue;
class SkillList;

/// Main thread. File work runs on the I/O queue; calls marked [blocks] wait for it. Storage
/// failures never stop the clock; `storageError` has them as text for the user.
class TrackerCore : public QObject {
    Q_OBJECT
    /// Whether a session is open and counting. Changes after all other fields are set.
    Q_PROPERTY(State state READ state NOTIFY stateChanged FINAL)
    /// Skill of the open session; empty when none is open.
    Q_PROPERTY(QString currentSkillId READ currentSkillIdText NOTIFY currentSkillIdChanged FINAL)
    /// The last storage failure; empty when the last write went well.
    Q_PROPERTY(QString storageError READ storageErrorText NOTIFY storageErrorChanged FINAL)
    /// How many records cannot be read, as text; empty when all can. Set by each read of the log.
    Q_PROPERTY(QString dataWarning READ dataWarningText NOTIFY dataWarningChanged FINAL)
    /// The short line after a resume; empty when there is none.
    Q_PROPERTY(QString welcomeBack READ welcomeBackText NOTIFY welcomeBackChanged FINAL)

public:
    enum class State { Idle, Running, Paused };
    Q_ENUM(State)

    using MarkerEncoder = std::function<Result<QByteArray>(const OpenSessionMarker&)>;

    /// The services that the tracker uses. All of them must outlive it.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue;
        const AppPaths& paths;
        Preferences& preferences;
        SkillList& skills;
        NotificationCenter& notifications;
        MarkerEncoder encodeMarker = {}; ///< empty means the JSON form
    };

    explicit TrackerCore(const Environment& environment);
    ~TrackerCore() override;

    static constexpr int maxBackfillMinutes = 30;
    static constexpr double futureStartTolerance = 300.0; ///< seconds

    // The session

    /// Opens a session that began `backfillMinutes` ago, if that is 1 to 30 and the evidence
    /// confirms it, else now. Returns the minutes applied; empty when a session is open already or
    /// its marker cannot be made. Calls `onSessionStarted` before it returns.
    std::optional<int> start(const Skill& skill, int backfillMinutes);

    /// Opens the session that continues `ended`, from the moment of its end: writing the record
    /// costs no counted time. If the machine slept in between, it begins now. Returns whether it
    /// opened; otherwise like `start`.
    bool startAfter(const Session& ended, const Skill& skill);

    /// Stops counting as of `date`, clamped to the running segment and now. Has no effect unless
    /// running. Time in which the machine slept or the program was stopped never counts: the next
    /// tick removes it, as a pause since the tick before.
    void pause(Date date);

    /// Counts again from now. Has no effect unless paused.
    void resume();

    /// Ends and logs the session. Returns the record; empty when no session is open or when writing
    /// fails. Then the session stays open and `storageError` says why. Calls `onSessionEnded`
    /// before it returns. [blocks]
    std::optional<Session> stop();

    /// Moves the start of the open session back by 1 to 30 minutes. Returns false unless the
    /// evidence confirms the whole time since.
    bool applyBackfill(int minutes);

    /// Drops the open session without a record, for the erase of all data.
    void discardOpenSessionForErase();

    /// Adds seconds to an open session, for work on the views; the program does not call it.
    void debugAdvance(double seconds);

    /// Returns the whole seconds for a running clock, rounded down, at least 0.
    [[nodiscard]] std::int64_t displayActiveSeconds() const;

    // The log

    /// Returns every valid record, oldest end first. Updates `dataWarning`. Keeps the records for a
    /// minute: reading an unchanged log again takes microseconds. [blocks]
    SessionList allSessions();

    /// Stores the note, trimmed and cut to 500 characters. Returns false when there is no such
    /// record or writing fails. [blocks]
    bool updateNote(const QUuid& sessionId, const QString& note);

    /// Removes the record. Returns false like updateNote(). [blocks]
    bool deleteSession(const QUuid& id);

    /// Adds a manual record of `minutes` (at least 1, capped at 960), ending now. Returns false for
    /// an unknown skill, too few minutes, or when writing fails. [blocks]
    bool logManual(const QString& skillId, int minutes, const QString& note);

    void clearStorageError();

    /// Notifies every history view once the event loop is reached again.
    void notifySessionsChanged();

    /// Whether the record counts in totals: it starts at most five minutes after `asOf`. A later
    /// start comes from a clock that has been set back since.
    [[nodiscard]] static bool countsInTotals(const Session& session, Date asOf) {
        return (session.startedAt - asOf).count() <= futureStartTolerance;
    }

    /// Returns after all queued writes ran. [blocks]
    void drainPendingIO();

    // Recovery after a crash

    /// Returns the marker of the last run when it holds at least a minute of work; removes any
    /// other. Call once, at launch. Until the marker is recovered or discarded, each stop restores
    /// it to the file, which the open session uses for its own marker. [blocks]
    std::optional<OpenSessionMarker> takeOrphanedMarker();

    /// Writes the unanswered marker of the last run again if no session is open, for the end of the
    /// program. A session that could not be stopped keeps the file. [blocks]
    void putBackOrphanedMarker();

    /// Logs the marker's session, unless the log holds it already, and removes the marker. Empty
    /// when there is nothing to recover or writing fails; then the marker stays. [blocks]
    std::optional<Session> recoverSession(const OpenSessionMarker& marker);

    /// Removes the marker. [blocks]
    void discardRecovery(const OpenSessionMarker& marker);

    // Published state

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const std::optional<QString>& currentSkillId() const { return m_currentSkillId; }
    [[nodiscard]] const std::optional<Date>& startedAt() const { return m_startedAt; }
    [[nodiscard]] const std::optional<QString>& storageError() const { return m_storageError; }
    [[nodiscard]] const std::optional<QString>& dataWarning() const { return m_dataWarning; }
    [[nodiscard]] const std::optional<QString>& welcomeBack() const { return m_welcomeBack; }
    [[nodiscard]] const std::optional<Date>& welcomeBackShownAt() const {
        return m_welcomeBackShownAt;
    }

    // Callbacks, set once by the owner, which they must hold weakly.

    std::function<void(const Skill&, Date)> onSessionStarted;
    std::function<void(const Session&)> onSessionEnded;

    /// Confirms backfill; held weakly. Without one no backfill is confirmed.
    void setIdleMonitor(ActivityEvidence* monitor) { m_idleMonitor = monitor; }

    /// The internal count, for tests and the simulator.
    struct Internals {
        double accumulatedSeconds = 0;
        std::optional<Date> segmentStart;
        std::optional<Date> lastKnownGoodAt;
        int ticksSinceMarkerWrite = 0;
        bool ticking = false;
    };
    [[nodiscard]] Internals internals() const;

    /// Appends a record; every record enters the log here. Public for tests; the program uses
    /// `stop`, `logManual` and `recoverSession`. [blocks]
    bool appendToLog(const Session& session);

Q_SIGNALS:
    void stateChanged();
    void currentSkillIdChanged();
    void startedAtChanged();
    void storageErrorChanged();
    void dataWarningChanged();
    void welcomeBackChanged();

private:
    bool open(const Skill& skill, Date from, int backfillMinutes);
    void startTicking();
    void tick();
    [[nodiscard]] Date countedUntil() const;
    [[nodiscard]] double currentActiveSeconds() const;
    [[nodiscard]] std::int64_t roundedActiveSeconds() const;
    bool writeMarker();
    void removeMarkerAndWait();
    void removeOrphanedMarker();
    void resetToIdle();
    void noteStorageFailure(const Error& error);
    bool rewriteSession(const QUuid& id, const SessionLog::Transform& transform);

    void setState(State state);
    void setCurrentSkillId(std::optional<QString> id);
    void setStartedAt(std::optional<Date> date);
    void setStorageError(std::optional<QString> text);
    void setDataWarning(std::optional<QString> text);
    void setWelcomeBack(std::optional<QString> text, std::optional<Date> shownAt);

    [[nodiscard]] QString currentSkillIdText() const {
        return m_currentSkillId.value_or(QString());
    }
    [[nodiscard]] QString storageErrorText() const { return m_storageError.value_or(QString()); }
    [[nodiscard]] QString dataWarningText() const { return m_dataWarning.value_or(QString()); }
    [[nodiscard]] QString welcomeBackText() const { return m_welcomeBack.value_or(QString()); }

    Environment m_env;
    SessionLog m_log;
    LogReader m_reader; ///< on the I/O queue
    TimerHandle m_forgetLog;
    QPointer<ActivityEvidence> m_idleMonitor;

    State m_state = State::Idle;
    std::optional<QString> m_currentSkillId;
    std::optional<Date> m_startedAt;
    std::optional<QString> m_storageError;
    std::optional<QString> m_dataWarning;
    std::optional<QString> m_welcomeBack;
    std::optional<Date> m_welcomeBackShownAt;

    std::optional<QByteArray> m_orphanedMarker; ///< of the last run, until answered

    std::optional<QUuid> m_sessionId;
    double m_accumulatedSeconds = 0;    ///< of all closed segments, backfill included
    std::optional<Date> m_segmentStart; ///< empty while paused
    std::optional<Date> m_lastKnownGoodAt;
    MissedTime m_missed; ///< updated with each tick while running
    int m_ticksSinceMarkerWrite = 0;
    TimerHandle m_tickTimer;
};

} // namespace vantle
