#include "app/PracticeSessions.h"

#include "platform/Preferences.h"
#include "tracking/Settings.h"
#include "tracking/TrackerCore.h"

namespace vantle {

bool PracticeSessions::needsWelcome() const { return !settings::welcomeDone.read(m_preferences); }

void PracticeSessions::finishWelcome() {
    settings::welcomeDone.write(m_preferences, true);
    settings::welcomeStage.remove(m_preferences);
}

void PracticeSessions::markOpenSession() {
    if (needsWelcome()) m_isMarked = m_tracker.state() != TrackerCore::State::Idle;
}

bool PracticeSessions::isOpen() const {
    return m_tracker.state() != TrackerCore::State::Idle && isPractice();
}

} // namespace vantle
