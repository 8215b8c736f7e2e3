#include "app/PracticeSessions.h"

#include "app/PreferenceKeys.h"
#include "platform/Preferences.h"
#include "tracking/TrackerCore.h"

namespace vantle {

bool PracticeSessions::needsWelcome() const {
    return !m_preferences.flag(preferencekeys::onboardDone);
}

void PracticeSessions::finishWelcome() {
    m_preferences.setBoolean(preferencekeys::onboardDone, true);
    m_preferences.remove(preferencekeys::onboardStage);
}

void PracticeSessions::markOpenSession() {
    if (needsWelcome()) m_isMarked = m_tracker.state() != TrackerCore::State::Idle;
}

bool PracticeSessions::isOpen() const {
    return m_tracker.state() != TrackerCore::State::Idle && isPractice();
}

} // namespace vantle
