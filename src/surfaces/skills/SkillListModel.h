// The list of skills, as chips.
#pragma once

#include "tracking/Skill.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace vantle {

/// One row per skill, in stored order. Main thread.
class SkillListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the models of the surfaces.")

public:
    enum Role { SkillId = Qt::UserRole, Name, HexRGB, Selected, Deletable };

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Updates in place, so that a chosen chip keeps the keyboard focus.
    void show(const std::vector<Skill>& skills, const QString& selectedId);

private:
    std::vector<Skill> m_skills;
    QString m_selectedId;
};

} // namespace vantle
