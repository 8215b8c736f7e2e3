// The question about an unknown application, for its view.
#pragma once

#include "app/Collaborators.h"
#include "tracking/Skill.h"

#include <QAbstractListModel>
#include <QObject>
#include <QQmlEngine>

#include <vector>

namespace vantle {

/// The skills that a question offers; constant. Main thread.
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

/// Main thread.
class TagPromptModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the controller.")
    Q_PROPERTY(QString headline READ headline CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(vantle::SkillChoices* choices READ choices CONSTANT)
    Q_PROPERTY(QString ignoreText READ ignoreText CONSTANT)
    Q_PROPERTY(QString ignoreHelp READ ignoreHelp CONSTANT)

public:
    using Outcome = collaborators::TagPrompt::Outcome;

    TagPromptModel(const QString& appName, const std::vector<Skill>& skills, bool isCounting,
                   bool isBrowser);

    [[nodiscard]] QString headline() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] SkillChoices* choices() { return &m_choices; }
    [[nodiscard]] QString ignoreText() const;
    [[nodiscard]] QString ignoreHelp() const;

    /// The user pressed the chip at that index.
    Q_INVOKABLE void pick(int index);
    Q_INVOKABLE void ignore();
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    /// The user touched the card. Emitted before each answer.
    void interacted();
    void resolved(const vantle::collaborators::TagPrompt::Outcome& outcome);

private:
    void resolve(const Outcome& outcome);

    const QString m_appName;
    const bool m_isCounting;
    const bool m_isBrowser;
    SkillChoices m_choices;
};

} // namespace vantle
