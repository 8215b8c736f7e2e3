#include "surfaces/cards/RecoveryNoticeModel.h"

#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr std::int64_t kShortestShown = 60; // seconds

} // namespace

RecoveryNoticeModel::RecoveryNoticeModel(const Session& session, const Skill& skill,
                                         DurationStyle style)
    : m_bodyPieces{
          QStringLiteral("Vantle didn't shut down cleanly. Keep "),
          dashformat::sessionDuration(std::max(session.activeSeconds, kShortestShown), style),
          QStringLiteral(" of "), skill.name,
          QStringLiteral("? Nothing is saved unless you choose Keep.")} {}

} // namespace vantle
