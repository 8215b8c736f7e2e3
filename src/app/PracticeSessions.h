// The rule which sessions are practice and leave nothing in the log.
#pragma once

namespace vantle {

class Preferences;
class TrackerCore;

/// Before the welcome is done every session is practice; afterwards only one that was started as
/// such. `SessionFlow` tells it of starts and ends, and deletes the records. Main thread; nothing
/// here fails.
class PracticeSessions {
public:
    /// Both must outlive this object.
    PracticeSessions(Preferences& preferences, const TrackerCore& tracker)
        : m_preferences(preferences)
        , m_tracker(tracker) {}

    /// Whether the welcome still has to be walked through.
    [[nodiscard]] bool needsWelcome() const;
    void finishWelcome();

    /// Makes the open session practice. Nothing once the welcome is done: from then on a session is
    /// work, however it comes about, unless it was started as practice.
    void markOpenSession();

    /// Whether a practice session is open.
    [[nodiscard]] bool isOpen() const;
    /// Whether the session that is open, or that just ended, is practice.
    [[nodiscard]] bool isPractice() const { return m_isMarked || needsWelcome(); }

    void noteStart(bool asPractice) { m_isMarked = asPractice; }
    void noteEnd() { m_isMarked = false; }

private:
    Preferences& m_preferences;
    const TrackerCore& m_tracker;
    bool m_isMarked = false; ///< of the open session
};

} // namespace vantle
