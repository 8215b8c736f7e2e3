#include "surfaces/capsule/SkillChipModel.h"

#include <utility>

namespace vantle {

SkillChipModel::SkillChipModel(SkillChipLayout layout, QString highlightedId)
    : m_layout(std::move(layout))
    , m_highlightedId(std::move(highlightedId)) {}

int SkillChipModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_layout.items.size());
}

QVariant SkillChipModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto& item = m_layout.items[static_cast<std::size_t>(index.row())];
    const Skill skill = item.skill.value_or(Skill());
    switch (role) {
    case SkillId:
        return skill.id;
    case Name:
        return skill.name;
    case HexRGB:
        return skill.hexRGB;
    case Frame:
        return item.frame;
    case Highlighted:
        return skill.id == m_highlightedId;
    default:
        return {};
    }
}

QHash<int, QByteArray> SkillChipModel::roleNames() const {
    return {{SkillId, "skillId"},
            {Name, "skillName"},
            {HexRGB, "hexRGB"},
            {Frame, "frame"},
            {Highlighted, "highlighted"}};
}

std::optional<Skill> SkillChipModel::skill(const QString& id) const {
    for (const auto& item : m_layout.items)
        if (item.skill && item.skill->id == id) return item.skill;
    return std::nullopt;
}

void SkillChipModel::highlight(const QString& id) {
    if (id == m_highlightedId) return;
    m_highlightedId = id;
    if (!m_layout.items.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Highlighted});
}

} // namespace vantle
