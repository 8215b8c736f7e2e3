#include "surfaces/quicklog/QuickLogView.h"

#include "app/SessionFlow.h"
#include "base/Words.h"
#include "platform/Preferences.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// The initial duration.
constexpr int kFirstMinutes = 30;

} // namespace

QuickLogView::QuickLogView(SessionFlow& flow, SkillList& skills, const Preferences& preferences,
                           std::function<void()> onClose)
    : m_flow(flow)
    , m_list(skills)
    , m_skills(skills.all())
    , m_onClose(std::move(onClose))
    , m_duration(QuickLogDuration::of(kFirstMinutes)) {
    m_skillIndex = placeOf(settings::lastUsedSkill.stored(preferences));
    connect(&skills, &SkillList::changed, this, [this] {
        const QString chosen = chosenSkill().id;
        m_skills = m_list.all();
        m_skillIndex = placeOf(chosen);
        Q_EMIT skillsChanged();
        Q_EMIT skillIndexChanged();
    });
}

int QuickLogView::placeOf(const std::optional<QString>& id) const {
    const auto found = std::ranges::find(m_skills, id, &Skill::id);
    return found == m_skills.end() ? 0 : static_cast<int>(found - m_skills.begin());
}

const Skill& QuickLogView::chosenSkill() const {
    return m_skills[static_cast<std::size_t>(m_skillIndex)];
}

QList<QString> QuickLogView::skillNames() const {
    QList<QString> names;
    for (const Skill& skill : m_skills)
        names << skill.name;
    return names;
}

void QuickLogView::setSkillIndex(int index) {
    if (index < 0 || index >= static_cast<int>(m_skills.size()) || index == m_skillIndex) return;
    m_skillIndex = index;
    Q_EMIT skillIndexChanged();
}

QColor QuickLogView::skillColor() const { return QColor::fromRgb(chosenSkill().hexRGB); }

void QuickLogView::setDuration(const QuickLogDuration& duration) {
    if (duration == m_duration) return;
    m_duration = duration;
    Q_EMIT durationChanged();
    if (m_isTimeWrong && m_duration.validMinutes()) setError({}, false);
}

void QuickLogView::setError(const QString& message, bool isTimeWrong) {
    m_errorMessage = message;
    m_isTimeWrong = isTimeWrong;
    Q_EMIT errorMessageChanged();
}

void QuickLogView::logEntry() {
    const auto minutes = m_duration.validMinutes();
    if (!minutes) {
        setError(Words::tr("Enter a time between 1 minute and 16 hours."), true);
        Q_EMIT hoursWanted();
        return;
    }
    if (m_flow.quickLog(chosenSkill().id, *minutes, m_note)) {
        m_onClose();
        return;
    }
    const QString reason = m_flow.tracker().storageError().value_or(QString());
    setError(reason.isEmpty() ? Words::tr("Couldn’t save that entry.") : reason, false);
}

} // namespace vantle
