// The two questions about an application: what it is for, and whether a choice becomes its rule.
#pragma once

#include "app/Collaborators.h"
#include "app/OpenQuestions.h"
#include "surfaces/cards/CornerCard.h"

#include <QObject>
#include <QPointer>

namespace vantle {

/// Asks one question at a time; a new one dismisses the one before. A question that gets no answer
/// goes by itself. Every callback is called exactly once, unless the question was not taken. Main
/// thread.
class TagPromptController final : public QObject, public collaborators::TagPrompt {
    Q_OBJECT

public:
    static constexpr double autoDismissSeconds = 15;

    explicit TagPromptController(const CardEnvironment& environment);
    ~TagPromptController() override;

    [[nodiscard]] bool show(const QString& appName, const std::vector<Skill>& skills,
                            bool isCounting, bool isBrowser,
                            std::function<void(const Outcome&)> onResolve) override;

    /// The callback gets true only for the button that says so.
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
    QPointer<QObject> m_model; ///< of the card that is up
    std::function<void(const Outcome&)> m_completion;
};

} // namespace vantle
