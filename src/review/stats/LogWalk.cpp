#include "review/stats/LogWalk.h"

#include "tracking/TrackerCore.h"

#include <algorithm>

namespace vantle {

void PeriodSums::add(const Session& session, LocalTime& local) {
    (session.source == sourceManual() ? manualSeconds : trackedSeconds) += session.activeSeconds;
    if (!session.note.isEmpty()) noted.push_back(&session);
    if (!longest || session.activeSeconds > longest->activeSeconds) longest = &session;
    starts.add(local.at(session.startedAt));
    dots.add(session);
}

LogWalk::LogWalk(const std::vector<Session>& sessions, const Plan& plan, LocalTime& local) {
    totals::BadgeTally badgeTally;
    // Most reviews cover the end of the log; one comparison skips an earlier record.
    const Date first = std::min({plan.period.start, plan.thisWeek.start, plan.earlierWeek.start});
    days.reserve(sessions.size());
    period.reserve(sessions.size());
    for (const Session& session : sessions) {
        const bool counts = TrackerCore::countsInTotals(session, plan.now);
        if (session.endedAt >= first) {
            if (counts && plan.period.contains(session.endedAt)) {
                period.push_back(&session);
                sums.add(session, local);
            }
            if (plan.thisWeek.contains(session.endedAt)) thisWeek.push_back(&session);
            if (plan.earlierWeek.contains(session.endedAt)) earlierWeek.push_back(&session);
        }
        if (!counts) continue;
        badgeTally.add(session);
        days.add(local.at(session.endedAt).day, skills.of(session.skillId), session.activeSeconds);
    }
    days.close();
    badges = badgeTally.earned();
}

} // namespace vantle
