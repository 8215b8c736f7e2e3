#include "surfaces/cards/RecoveryNoticeModel.h"

#include "base/Bidi.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr std::int64_t kShortestShown = 60; // seconds

QString bodyText() {
    return Words::tr(
        "Vantle didn't shut down cleanly. Keep %1 of %2? Nothing is saved unless you choose Keep.");
}

} // namespace

RecoveryNoticeModel::RecoveryNoticeModel(const Session& session, const Skill& skill,
                                         DurationStyle style)
    : m_duration(
          dashformat::sessionDuration(std::max(session.activeSeconds, kShortestShown), style))
    , m_skillName(skill.name) {}

QString RecoveryNoticeModel::body() const {
    return bodyText().arg(m_duration, bidi::isolated(m_skillName));
}

QString RecoveryNoticeModel::styledBody(const QColor& stressed) const {
    const auto inColor = [&](const QString& part) {
        return QStringLiteral("<font color=\"%1\">%2</font>")
            .arg(stressed.name(QColor::HexArgb), part.toHtmlEscaped());
    };
    return bodyText().toHtmlEscaped().arg(inColor(m_duration),
                                          inColor(bidi::isolated(m_skillName)));
}

} // namespace vantle
