// The chips that filter the notes by skill.
#pragma once

#include "tracking/Skill.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <optional>
#include <vector>

namespace vantle {

/// One per skill with a note, without the chip for all. Main thread.
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
