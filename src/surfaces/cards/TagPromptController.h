// The controller of the two questions about an application.
#pragma once

#include "app/Collaborators.h"
#include "app/OpenQuestions.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>
#include <QPointer>

namespace vantle {

/// What it is for, and whether a choice becomes its rule. Shows one question at a time; a new one
/// dismisses the previous. An unanswered question closes itself. Calls each callback exactly once,
/// unless the question was refused. Main thread.
class TagPromptController final : public QObject, public collaborators::TagPrompt {
    Q_OBJECT

public:
    static constexpr double autoDismissSeconds = 15;

    explicit TagPromptController(const CardEnvironment& environment);
    ~TagPromptController() override;

    [[nodiscard]] bool show(const QString& appName, const std::vector<Skill>& skills,
                            bool isCounting, bool isBrowser,
                            std::function<void(const Outcome&)> onResolve) override;

    /// Passes true only for the button that confirms.
    [[nodiscard]] bool showCorrection(const QString& appName, const Skill& skill,
                                      std::function<void(bool)> onResolve) override;

private:
    [[nodiscard]] bool takeCorner();
    [[nodiscard]] bool present(CardView view, const std::shared_ptr<QObject>& model,
                               OpenQuestions::Question question,
                               std::function<void(const Outcome&)> completion);
    void finish(const Outcome& outcome);

    CardEnvironment m_env;
    CornerCard m_card;
    QPointer<QObject> m_model; ///< of the open card
    std::function<void(const Outcome&)> m_completion;
};

} // namespace vantle
