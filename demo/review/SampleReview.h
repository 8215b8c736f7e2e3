// Sample logs for the pictures of the review.
#pragma once

#include "tracking/Session.h"

#include <vector>

namespace vantle {

/// Two years of a user who builds late at night. The week before that of sampleNow() has twelve
/// sessions, the one that holds it nine, with notes.
[[nodiscard]] std::vector<Session> nightOwlYears();

/// Some weeks only: the first hours of a user, which pass two milestones this month.
[[nodiscard]] std::vector<Session> firstWeeks();

/// One skill alone, this week.
[[nodiscard]] std::vector<Session> oneSkill();

/// A working life, which passes the milestone of 10,000 hours.
[[nodiscard]] std::vector<Session> workingLife();

/// Three sessions on the day of sampleNow().
[[nodiscard]] std::vector<Session> firstDay();

} // namespace vantle
