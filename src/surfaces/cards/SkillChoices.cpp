#include "surfaces/cards/SkillChoices.h"

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

} // namespace vantle
