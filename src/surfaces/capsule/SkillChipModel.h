// The chips of the capsule, as its view lists them.
#pragma once

#include "surfaces/capsule/SkillChipLayout.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One row a skill, each with its place. Main thread.
class SkillChipModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { SkillId = Qt::UserRole, Name, HexRGB, Frame, Highlighted };

    SkillChipModel(SkillChipLayout layout, QString highlightedId);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const SkillChipLayout& layout() const { return m_layout; }
    [[nodiscard]] std::optional<Skill> skill(const QString& id) const;

    /// The session's skill, or the one that a start would take.
    void highlight(const QString& id);

private:
    SkillChipLayout m_layout;
    QString m_highlightedId;
};

} // namespace vantle
