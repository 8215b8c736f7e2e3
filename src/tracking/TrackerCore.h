// The one object that knows whether a session is open. Counts active seconds, keeps the marker on
// the disk current, and turns a finished session into a record of the log. Knows no surface.
#pragma once

#include "base/Clock.h"
#include "base/MissedTime.h"
#include "base/Result.h"
#include "base/Scheduler.h"
#include "tracking/ActivityEvidence.h"
#include "tracking/Session.h"
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

/// Thread: main only. File work runs on the I/O queue; the calls marked [blocks] wait for it.
/// Storage failures never stop the clock; they stand in `storageError`, in the person's words.
class TrackerCore : public QObject {
    Q_OBJECT
    /// Whether a session is open, and whether it counts. Changes after all other fields are set.
    Q_PROPERTY(State state READ state NOTIFY stateChanged FINAL)
    /// Skill of the open session; empty when none is open.
    Q_PROPERTY(QString currentSkillId READ currentSkillIdText NOTIFY currentSkillIdChanged FINAL)
    /// The last storage failure; empty when the last write went well.
    Q_PROPERTY(QString storageError READ storageErrorText NOTIFY storageErrorChanged FINAL)
    /// How many records of the log can't be read; empty when all can. As of the last read.
    Q_PROPERTY(QString dataWarning READ dataWarningText NOTIFY dataWarningChanged FINAL)
    /// The short line after a resume; empty when there is none.
    Q_PROPERTY(QString welcomeBack READ welcomeBackText NOTIFY welcomeBackChanged FINAL)

public:
    enum class State { Idle, Running, Paused };
    Q_ENUM(State)

    using MarkerEncoder = std::function<Result<QByteArray>(const OpenSessionMarker&)>;

    /// What the tracker works with. All of it must outlive the tracker.
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
    /// confirms it, else now. The minutes really applied; empty when a session is open already or
    /// its marker can't be made. `onSessionStarted` runs before this returns.
    std::optional<int> start(const Skill& skill, int backfillMinutes);

    /// Opens the session that takes over from `ended`, at the moment at which that one ended: the
    /// time it took to write the record is lost to neither. Over a sleep of the machine in between,
    /// it begins now. Whether it opened; else as `start`.
    bool startAfter(const Session& ended, const Skill& skill);

    /// Stops counting as of `date`, clamped to the running segment and now. Nothing unless running.
    /// Time in which the machine slept or the program was stopped is never counted: it is cut out
    /// by the next tick, as a pause that began with the last one.
    void pause(Date date);

    /// Counts again from now. Nothing unless paused.
    void resume();

    /// Ends and logs the session. Empty when none is open, or when the record could not be
    /// written: then the session stays open and `storageError` says why. `onSessionEnded` runs
    /// before this returns. [blocks]
    std::optional<Session> stop();

    /// Moves the start of the open session back by 1 to 30 minutes, if the evidence confirms the
    /// whole stretch up to now.
    bool applyBackfill(int minutes);

    /// Drops the open session without a record; for the erase of all data.
    void discardOpenSessionForErase();

    /// Adds seconds to an open session. For work on surfaces; nothing in the program calls it.
    void debugAdvance(double seconds);

    /// What a clock on the screen shows: whole seconds, cut off, never below 0.
    [[nodiscard]] std::int64_t displayActiveSeconds() const;

    // The log

    /// Every acceptable record, oldest end first. Refreshes `dataWarning`. [blocks]
    std::vector<Session> allSessions();

    /// Stores the note, trimmed and cut to 500 characters. False when the record is not there or
    /// can't be written. [blocks]
    bool updateNote(const QUuid& sessionId, const QString& note);

    /// Removes the record. False as above. [blocks]
    bool deleteSession(const QUuid& id);

    /// Adds `minutes` (1 or more, capped at 960) of the skill, ending now. False for an unknown
    /// skill or too few minutes, or when the record can't be written. [blocks]
    bool logManual(const QString& skillId, int minutes, const QString& note);

    void clearStorageError();

    /// Tells every history view to reload, once the present work is over.
    void notifySessionsChanged();

    /// Whether the record counts in totals: it starts at most five minutes after `asOf`. Later
    /// ones come from a clock that was set back since.
    [[nodiscard]] static bool countsInTotals(const Session& session, Date asOf) {
        return (session.startedAt - asOf).count() <= futureStartTolerance;
    }

    /// Returns when everything queued for the disk so far has run. [blocks]
    void drainPendingIO();

    // Recovery after a crash

    /// The marker that the last run left, when it tells of at least a minute of work. One that
    /// does not, or can't be trusted, is removed. Call once, at launch. Until the marker is
    /// recovered or discarded, every stop puts it back into the file, which the open session takes
    /// for its own marker. [blocks]
    std::optional<OpenSessionMarker> takeOrphanedMarker();

    /// Writes the marker of the last run again if it is not answered and no session is open; for
    /// the end of the program. An open session that can't be stopped keeps the file. [blocks]
    void putBackOrphanedMarker();

    /// Logs what the marker tells, or finds it logged already, and removes the marker. Empty when
    /// there is nothing to recover or it can't be written; then the marker stays. [blocks]
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

    // Set once by the owner, which they must hold weakly.

    std::function<void(const Skill&, Date)> onSessionStarted;
    std::function<void(const Session&)> onSessionEnded;

    /// Asked before backfill is honoured; held weakly, none means nothing is confirmed.
    void setIdleMonitor(ActivityEvidence* monitor) { m_idleMonitor = monitor; }

    /// The inner count, for tests and the simulator.
    struct Internals {
        double accumulatedSeconds = 0;
        std::optional<Date> segmentStart;
        std::optional<Date> lastKnownGoodAt;
        int ticksSinceMarkerWrite = 0;
        bool ticking = false;
    };
    [[nodiscard]] Internals internals() const;

    /// Adds a record to the log. The only way in which one enters it. Public for the tests of the
    /// log; the program's own ways in are `stop`, `logManual` and `recoverSession`. [blocks]
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
    QPointer<ActivityEvidence> m_idleMonitor;

    State m_state = State::Idle;
    std::optional<QString> m_currentSkillId;
    std::optional<Date> m_startedAt;
    std::optional<QString> m_storageError;
    std::optional<QString> m_dataWarning;
    std::optional<QString> m_welcomeBack;
    std::optional<Date> m_welcomeBackShownAt;

    std::optional<QByteArray> m_orphanedMarker; ///< of the last run, while it is not answered

    std::optional<QUuid> m_sessionId;
    double m_accumulatedSeconds = 0;    ///< of all closed segments, backfill included
    std::optional<Date> m_segmentStart; ///< empty while paused
    std::optional<Date> m_lastKnownGoodAt;
    MissedTime m_missed; ///< looked at with each tick while running
    int m_ticksSinceMarkerWrite = 0;
    TimerHandle m_tickTimer;
};

} // namespace vantle
