#include "surfaces/cards/TagPromptModel.h"

#include "base/Bidi.h"
#include "base/Words.h"

#include <QColor>

namespace vantle {

QVariant SkillChoices::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Skill& skill = m_skills[static_cast<std::size_t>(index.row())];
    if (role == NameRole) return skill.name;
    if (role == ColorRole) return QColor::fromRgb(skill.hexRGB);
    return {};
}

QHash<int, QByteArray> SkillChoices::roleNames() const {
    return {{NameRole, "skillName"}, {ColorRole, "skillColor"}};
}

TagPromptModel::TagPromptModel(const QString& appName, const std::vector<Skill>& skills,
                               bool isCounting, bool isBrowser)
    : m_appName(appName)
    , m_isCounting(isCounting)
    , m_isBrowser(isBrowser)
    , m_choices(skills) {}

QString TagPromptModel::headline() const {
    if (m_isBrowser) return Words::tr("What is %1 usually?").arg(bidi::isolated(m_appName));
    if (m_isCounting) return Words::tr("Counting time in %1").arg(bidi::isolated(m_appName));
    return Words::tr("Count %1 toward a skill?").arg(bidi::isolated(m_appName));
}

QString TagPromptModel::subtitle() const {
    if (m_isBrowser)
        return Words::tr("A browser can be anything; pick its usual job or keep it flexible.");
    if (m_isCounting) return Words::tr("Which skill is this?");
    return Words::tr("Auto mode remembers your choice.");
}

QString TagPromptModel::ignoreText() const {
    return m_isBrowser ? Words::tr("Keep it flexible") : Words::tr("Ignore this app");
}

QString TagPromptModel::ignoreHelp() const {
    return m_isBrowser ? Words::tr("Auto mode never guesses for this browser; switch categories "
                                   "from the notch any time")
                       : Words::tr("Auto mode never reacts to this app");
}

void TagPromptModel::pick(int index) {
    const auto& skills = m_choices.skills();
    if (index < 0 || index >= static_cast<int>(skills.size())) return;
    resolve({Outcome::Kind::Tagged, skills[static_cast<std::size_t>(index)].id});
}

void TagPromptModel::ignore() { resolve({Outcome::Kind::Ignore, {}}); }

void TagPromptModel::dismiss() { resolve({Outcome::Kind::Dismiss, {}}); }

void TagPromptModel::resolve(const Outcome& outcome) {
    Q_EMIT interacted();
    Q_EMIT resolved(outcome);
}

} // namespace vantle
