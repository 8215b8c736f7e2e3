#include "surfaces/skills/SkillListModel.h"

#include <algorithm>

namespace vantle {

int SkillListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_skills.size());
}

QVariant SkillListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Skill& skill = m_skills.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case SkillId:
        return skill.id;
    case Name:
        return skill.name;
    case HexRGB:
        return skill.hexRGB;
    case Selected:
        return skill.id == m_selectedId;
    case Deletable:
        return m_skills.size() > 1; // one must remain
    default:
        return {};
    }
}

QHash<int, QByteArray> SkillListModel::roleNames() const {
    return {{SkillId, "skillId"},
            {Name, "name"},
            {HexRGB, "hexRGB"},
            {Selected, "selected"},
            {Deletable, "deletable"}};
}

void SkillListModel::show(const std::vector<Skill>& skills, const QString& selectedId) {
    m_selectedId = selectedId;
    const auto sameId = [](const Skill& a, const Skill& b) { return a.id == b.id; };
    if (!std::ranges::equal(skills, m_skills, sameId)) {
        beginResetModel();
        m_skills = skills;
        endResetModel();
        return;
    }
    m_skills = skills;
    if (!m_skills.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

} // namespace vantle
