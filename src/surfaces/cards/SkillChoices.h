// The skills that a question offers, as a view lists them.
#pragma once

#include "tracking/Skill.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace vantle {

/// Fixed from the beginning. Main thread.
class SkillChoices final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the model of a question.")

public:
    enum Role { NameRole = Qt::UserRole, ColorRole };

    explicit SkillChoices(std::vector<Skill> skills) : m_skills(std::move(skills)) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_skills.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const std::vector<Skill>& skills() const { return m_skills; }

private:
    const std::vector<Skill> m_skills;
};

} // namespace vantle
