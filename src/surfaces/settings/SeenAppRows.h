// The list model of applications that auto mode has seen.
#pragma once

#include "sensing/AutoRulesState.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <optional>
#include <vector>

namespace vantle {

/// Rows keep their view when others change. Main thread.
class SeenAppRows : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role {
        BundleIdRole = Qt::UserRole,
        NameRole,
        IsAutomaticRole, ///< guessed rather than chosen by the user
        ChoiceRole,      ///< index among the menu's choices
        IsSkillRole,     ///< the choice is a skill
        ColorRole,       ///< of the skill
        MenuLabelRole,   ///< for screen readers, on the menu
        ForgetLabelRole, ///< for screen readers, on the forget button
    };

    /// An application and its rule.
    struct Row {
        QString bundleId;
        QString name;
        int choice = 0;
        std::optional<std::uint32_t> hexRGB; ///< of the skill; empty without one
        bool isAutomatic = false;
        bool hasChoice = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void setRows(const std::vector<Row>& rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void removeAllBut(const std::vector<Row>& rows);
    void bringTo(int place, const Row& row);

    std::vector<Row> m_rows;
};

} // namespace vantle
