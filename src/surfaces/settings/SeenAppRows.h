// The applications that auto mode has seen, as the settings list them.
#pragma once

#include "sensing/AutoRulesState.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <optional>
#include <vector>

namespace vantle {

/// Rows that stay keep their view when others come, go or change places. Main thread.
class SeenAppRows : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role {
        BundleIdRole = Qt::UserRole,
        NameRole,
        IsAutomaticRole, ///< nobody chose the skill; it was guessed
        ChoiceRole,      ///< its place among the choices that the menu offers
        IsSkillRole,     ///< the choice is a skill
        ColorRole,       ///< of the skill
        MenuLabelRole,   ///< read out for the menu
        ForgetLabelRole, ///< read out for the button that forgets the application
    };

    /// One application with what is known about it.
    struct Row {
        QString bundleId;
        QString name;
        int choice = 0;
        std::optional<std::uint32_t> hexRGB; ///< of the skill; none when it has no skill
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
