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

QString RecoveryNoticeModel::styledBody(const QColor& stressed) const {
    QString body;
    for (qsizetype i = 0; i < m_bodyPieces.size(); ++i) {
        const QString piece = m_bodyPieces[i].toHtmlEscaped();
        body += i % 2 == 0 ? piece
                           : QStringLiteral("<font color=\"%1\">%2</font>")
                                 .arg(stressed.name(QColor::HexArgb), piece);
    }
    return body;
}

} // namespace vantle
