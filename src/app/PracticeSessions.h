// The rule that decides which sessions are practice and leave no record.
#pragma once

namespace vantle {

class Preferences;
class TrackerCore;

/// Until the welcome is done every session is practice; afterwards only those started as practice.
/// `SessionFlow` reports starts and ends, and deletes the records. Does not fail. Main thread.
class PracticeSessions {
public:
    /// Both must outlive this object.
    PracticeSessions(Preferences& preferences, const TrackerCore& tracker)
        : m_preferences(preferences)
        , m_tracker(tracker) {}

    /// Whether the welcome is still to be shown.
    [[nodiscard]] bool needsWelcome() const;
    void finishWelcome();

    /// Marks the open session as practice. Has no effect once the welcome is done: then only a
    /// session that was started as practice is one.
    void markOpenSession();

    /// Whether a practice session is open.
    [[nodiscard]] bool isOpen() const;
    /// Whether the open session, or the one that just ended, is practice.
    [[nodiscard]] bool isPractice() const { return m_isMarked || needsWelcome(); }

    void noteStart(bool asPractice) { m_isMarked = asPractice; }
    void noteEnd() { m_isMarked = false; }

private:
    Preferences& m_preferences;
    const TrackerCore& m_tracker;
    bool m_isMarked = false; ///< of the open session
};

} // namespace vantle
