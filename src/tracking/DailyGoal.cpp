#include "tracking/DailyGoal.h"

#include "platform/Preferences.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle::dailygoal {

double hours(const Preferences& preferences) {
    const double stored = preferences.number(QLatin1String(hoursKey)).value_or(0.0);
    return stored > 0.0 ? std::min(stored, maxHours) : defaultHours;
}

void setHours(double hours, Preferences& preferences) {
    preferences.setNumber(QLatin1String(hoursKey), hours);
}

QString label(double hours, DurationStyle style) { return dashformat::inlineHours(hours, style); }

} // namespace vantle::dailygoal
