#include "surfaces/cards/StopSummaryController.h"

#include "app/OpenQuestions.h"
#include "app/TopRightCardSlot.h"
#include "base/Text.h"
#include "base/Words.h"
#include "surfaces/cards/StopSummaryModel.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <utility>

namespace vantle {

namespace {

std::optional<QString> noteOf(const QString& typed) {
    const QString note = text::trimmed(typed);
    return note.isEmpty() ? std::nullopt : std::optional(note);
}

} // namespace

StopSummaryController::StopSummaryController(const CardEnvironment& environment)
    : m_env(environment)
    , m_card(environment) {}

StopSummaryController::~StopSummaryController() {
    m_env.questions.close(this);
    m_env.slot.release(this);
}

void StopSummaryController::show(const Content& content,
                                 std::function<void(const std::optional<QString>& note)> onClose) {
    m_last.reset();
    finish(std::nullopt);
    if (!content.spotlightNote) m_last = Last{content, onClose};
    present(content, std::move(onClose));
    const StopSummaryModel told(content, m_env.skills.display(content.session.skillId),
                                settings::durationStyle.read(m_env.preferences));
    Q_EMIT m_env.questions.said(
        Words::tr("Session stopped, %1. %2").arg(told.durationLabel(), told.resultText()));
}

void StopSummaryController::present(
    const Content& content, std::function<void(const std::optional<QString>& note)> onClose) {
    m_completion = std::move(onClose);
    const auto model =
        std::make_shared<StopSummaryModel>(content, m_env.skills.display(content.session.skillId),
                                           settings::durationStyle.read(m_env.preferences));
    m_env.questions.ask(
        this, {Words::tr("Last session: %1").arg(model->durationLabel()),
               {{Words::tr("Write a note"),
                 Words::tr("One line about what you worked on. Return saves it, Escape goes back."),
                 [this] { openNote(); }, true}}});
    if (!m_env.stage.cardScreen()) return finish(std::nullopt);
    m_env.slot.takeForSummary(this, [this] { finish(std::nullopt); });
    connect(model.get(), &StopSummaryModel::interacted, this, [this] { m_card.stay(); });
    connect(model.get(), &StopSummaryModel::done, this,
            [this](const QString& note) { finish(noteOf(note)); });
    connect(model.get(), &StopSummaryModel::keyboardReleased, this, [this] {
        if (m_card.panel() != nullptr) m_card.panel()->returnKeyboard();
    });
    if (!m_card.present(CardView::StopSummary, model)) return finish(std::nullopt);
    m_model = model.get();
    if (content.spotlightNote) inviteNote();
    m_card.dismissAfter(
        Seconds(content.spotlightNote ? spotlightDismissSeconds : autoDismissSeconds),
        [this] { finish(std::nullopt); });
}

void StopSummaryController::inviteNote() {
    m_card.panel()->takeKeyboard();
    m_env.scheduler.post([self = QPointer(this), shown = m_model] {
        if (self && shown && self->m_model == shown) shown->inviteNote();
    });
}

void StopSummaryController::openNote() {
    if (m_card.panel() == nullptr && m_last) present(Content(m_last->content), m_last->onClose);
    if (m_card.panel() == nullptr) return;
    m_card.stay();
    inviteNote();
}

void StopSummaryController::forgetNote() {
    m_last.reset();
    if (m_card.panel() == nullptr) m_env.questions.close(this);
}

void StopSummaryController::finish(const std::optional<QString>& note) {
    if (m_model) disconnect(m_model, nullptr, this, nullptr);
    m_model = nullptr;
    const bool wasUp = m_card.takeDown();
    if (note) m_last.reset();
    if (!m_last) m_env.questions.close(this);
    if (const auto completion = std::exchange(m_completion, {})) completion(note);
    m_env.slot.release(this);
    if (wasUp) Q_EMIT m_env.notifications.HFStopSummaryResolved();
}

} // namespace vantle
