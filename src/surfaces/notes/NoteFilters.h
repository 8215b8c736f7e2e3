// The chips that narrow the notes to one skill.
#pragma once

#include "tracking/Skill.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <optional>
#include <vector>

namespace vantle {

/// One for each skill that has a note. The chip for all of them is not among these. Main thread.
class NoteFilters : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { SkillIdRole = Qt::UserRole, NameRole, ColorRole, SelectedRole };

    void setSkills(const std::vector<Skill>& skills);
    void select(const std::optional<QString>& skillId);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Skill> m_skills;
    std::optional<QString> m_selected;
};

} // namespace vantle
