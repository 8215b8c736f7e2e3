// The texts of the command center.
//
// Pure functions, any thread.
#pragma once

#include "tracking/TrackerCore.h"

#include <QList>
#include <QString>

namespace vantle::commandcentertext {

/// The session's state for the panel.
struct Status {
    TrackerCore::State state = TrackerCore::State::Idle;
    QString skillName;   ///< of the session
    QString welcomeBack; ///< empty unless the session has just resumed
    QString time;        ///< the active time in the user's format
};

/// State and skill, and separately the time, which a narrow panel never elides; empty without a
/// session. Joined by a dot they are the whole title.
struct Title {
    QString state;
    QString time;
    [[nodiscard]] QString whole() const;
};
[[nodiscard]] Title title(const Status& status);
[[nodiscard]] QString subtitle(TrackerCore::State state);

/// The primary button's text; `modeName` is that of the chosen skill.
[[nodiscard]] QString primary(const Status& status, const QString& modeName);

/// "Enter Writing Mode"; does not repeat a final word "mode".
[[nodiscard]] QString enter(const QString& skillName);

/// Returns the minutes to offer when presence is confirmed that far back.
[[nodiscard]] QList<int> backfillChoices(int coverageMinutes);

} // namespace vantle::commandcentertext
