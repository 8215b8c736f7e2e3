#include "surfaces/cards/TagPromptController.h"

#include "app/OpenQuestions.h"
#include "app/TopRightCardSlot.h"
#include "base/Words.h"
#include "surfaces/cards/CorrectionPromptModel.h"
#include "surfaces/cards/TagPromptModel.h"

#include <utility>

namespace vantle {

namespace {

/// The answers hold the model weakly, since it is destroyed with the card.
OpenQuestions::Question questionOf(TagPromptModel& model) {
    OpenQuestions::Question question;
    question.text = model.headline() + QLatin1Char('\n') + model.subtitle();
    const QPointer shown(&model);
    const auto& skills = model.choices()->skills();
    for (int i = 0; i < static_cast<int>(skills.size()); ++i)
        question.answers.push_back({skills[static_cast<std::size_t>(i)].name, {}, [shown, i] {
                                        if (shown) shown->pick(i);
                                    }});
    question.answers.push_back({model.ignoreText(), model.ignoreHelp(), [shown] {
                                    if (shown) shown->ignore();
                                }});
    question.answers.push_back({Words::tr("Not now"), {}, [shown] {
                                    if (shown) shown->dismiss();
                                }});
    return question;
}

OpenQuestions::Question questionOf(CorrectionPromptModel& model) {
    const QPointer shown(&model);
    const auto always = [shown] {
        if (shown) shown->accept();
    };
    const auto no = [shown] {
        if (shown) shown->decline();
    };
    return {
        model.question(),
        {{Words::tr("Always"), model.alwaysHelp(), always}, {Words::tr("No"), model.noHelp(), no}}};
}

} // namespace

TagPromptController::TagPromptController(const CardEnvironment& environment)
    : m_env(environment)
    , m_card(environment) {}

TagPromptController::~TagPromptController() {
    m_env.questions.close(this);
    m_env.slot.release(this);
}

bool TagPromptController::show(const QString& appName, const std::vector<Skill>& skills,
                               bool isCounting, bool isBrowser,
                               std::function<void(const Outcome&)> onResolve) {
    if (!takeCorner()) return false;
    const auto model = std::make_shared<TagPromptModel>(appName, skills, isCounting, isBrowser);
    connect(model.get(), &TagPromptModel::interacted, this, [this] { m_card.stay(); });
    connect(model.get(), &TagPromptModel::resolved, this, &TagPromptController::finish);
    return present(CardView::TagPrompt, model, questionOf(*model), std::move(onResolve));
}

bool TagPromptController::showCorrection(const QString& appName, const Skill& skill,
                                         std::function<void(bool)> onResolve) {
    if (!takeCorner()) return false;
    const auto model = std::make_shared<CorrectionPromptModel>(appName, skill);
    connect(model.get(), &CorrectionPromptModel::accepted, this, [this, id = skill.id] {
        finish({Outcome::Kind::Tagged, id});
    });
    connect(model.get(), &CorrectionPromptModel::declined, this, [this] { finish({}); });
    return present(CardView::CorrectionPrompt, model, questionOf(*model),
                   [onResolve = std::move(onResolve)](const Outcome& outcome) {
                       onResolve(outcome.kind == Outcome::Kind::Tagged);
                   });
}

bool TagPromptController::takeCorner() {
    finish({});
    return m_env.slot.request(this, TopRightCardSlot::Kind::Prompt, [this] { finish({}); }, {});
}

bool TagPromptController::present(CardView view, const std::shared_ptr<QObject>& model,
                                  OpenQuestions::Question question,
                                  std::function<void(const Outcome&)> completion) {
    if (!m_card.present(view, model)) {
        m_env.slot.release(this);
        return false;
    }
    m_model = model.get();
    m_completion = std::move(completion);
    question.spoken = Words::tr("%1 The answers are in the panel.").arg(question.text);
    m_env.questions.ask(this, std::move(question));
    m_card.dismissAfter(Seconds(autoDismissSeconds), [this] { finish({}); });
    return true;
}

void TagPromptController::finish(const Outcome& outcome) {
    if (m_model) disconnect(m_model, nullptr, this, nullptr);
    m_model = nullptr;
    m_card.takeDown();
    m_env.questions.close(this);
    if (const auto completion = std::exchange(m_completion, {})) completion(outcome);
    m_env.slot.release(this);
}

} // namespace vantle
