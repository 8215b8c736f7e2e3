// What the command center says. Pure functions, any thread.
#pragma once

#include "tracking/TrackerCore.h"

#include <QList>
#include <QString>

namespace vantle::commandcentertext {

/// The session as the panel sees it.
struct Status {
    TrackerCore::State state = TrackerCore::State::Idle;
    QString skillName;   ///< of the session
    QString welcomeBack; ///< empty unless the session has just gone on
    QString time;        ///< the active time, as the person wants durations written
};

/// The state and the skill, and after them the time, which a narrow panel never cuts; the time is
/// empty while no session is open. With the dot between the two they are the whole title.
struct Title {
    QString state;
    QString time;
    [[nodiscard]] QString whole() const;
};
[[nodiscard]] Title title(const Status& status);
[[nodiscard]] QString subtitle(TrackerCore::State state);

/// What the primary button says; `modeName` is the name of the chosen skill.
[[nodiscard]] QString primary(const Status& status, const QString& modeName);

/// "Enter Writing Mode"; a name that ends in the word mode does not get it twice.
[[nodiscard]] QString enter(const QString& skillName);

/// The minutes that may be credited, for a presence that is confirmed that far back.
[[nodiscard]] QList<int> backfillChoices(int coverageMinutes);

} // namespace vantle::commandcentertext
