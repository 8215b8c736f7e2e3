#include "surfaces/notes/NoteFilters.h"

#include <QColor>

namespace vantle {

void NoteFilters::setSkills(const std::vector<Skill>& skills) {
    if (skills == m_skills) return;
    beginResetModel();
    m_skills = skills;
    endResetModel();
}

void NoteFilters::select(const std::optional<QString>& skillId) {
    if (skillId == m_selected) return;
    m_selected = skillId;
    if (!m_skills.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {SelectedRole});
}

int NoteFilters::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_skills.size());
}

QVariant NoteFilters::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Skill& skill = m_skills[static_cast<std::size_t>(index.row())];
    switch (role) {
    case SkillIdRole:
        return skill.id;
    case NameRole:
        return skill.name;
    case ColorRole:
        return QColor::fromRgb(skill.hexRGB);
    case SelectedRole:
        return skill.id == m_selected;
    default:
        return {};
    }
}

QHash<int, QByteArray> NoteFilters::roleNames() const {
    return {{SkillIdRole, "skillId"},
            {NameRole, "name"},
            {ColorRole, "skillColor"},
            {SelectedRole, "selected"}};
}

} // namespace vantle
