#include "surfaces/cards/RecoveryNoticeController.h"

#include "app/OpenQuestions.h"
#include "app/TopRightCardSlot.h"
#include "base/Words.h"
#include "surfaces/cards/RecoveryNoticeModel.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <QPointer>

#include <utility>

namespace vantle {

RecoveryNoticeController::RecoveryNoticeController(const CardEnvironment& environment)
    : m_env(environment)
    , m_card(environment) {}

RecoveryNoticeController::~RecoveryNoticeController() {
    m_offer.reset();
    m_env.questions.close(this);
    m_env.slot.release(owner());
}

void RecoveryNoticeController::show(const Session& session, std::function<void()> onDiscard,
                                    std::function<void()> onKeep) {
    hideForEviction();
    m_env.slot.release(owner());
    m_offer = Offer{session, std::move(onDiscard), std::move(onKeep)};
    const auto model = makeModel();
    m_env.questions.ask(this,
                        {model->body(),
                         {{Words::tr("Keep"), model->keepHelp(), [this] { keep(); }},
                          {Words::tr("Discard"), model->discardHelp(), [this] { discard(); }}}});
    present();
}

std::shared_ptr<RecoveryNoticeModel> RecoveryNoticeController::makeModel() const {
    return std::make_shared<RecoveryNoticeModel>(m_offer->session,
                                                 m_env.skills.display(m_offer->session.skillId),
                                                 settings::durationStyle.read(m_env.preferences));
}

void RecoveryNoticeController::present() {
    const bool granted = m_env.slot.request(
        owner(), TopRightCardSlot::Kind::Recovery, [this] { m_card.takeDown(); },
        [self = QPointer(this)] {
            if (self && self->m_offer) self->present();
        });
    if (!granted) return;
    const auto model = makeModel();
    connect(model.get(), &RecoveryNoticeModel::discarded, this, &RecoveryNoticeController::discard);
    connect(model.get(), &RecoveryNoticeModel::kept, this, &RecoveryNoticeController::keep);
    if (!m_card.present(CardView::RecoveryNotice, model)) m_env.slot.release(owner());
}

void RecoveryNoticeController::showWaiting() {
    if (m_offer && !m_card.panel()) present();
}

void RecoveryNoticeController::hideForEviction() {
    m_offer.reset();
    m_env.questions.close(this);
    m_card.takeDown();
}

std::optional<RecoveryNoticeController::Offer> RecoveryNoticeController::takeOffer() {
    auto offer = std::exchange(m_offer, std::nullopt);
    m_env.questions.close(this);
    m_card.takeDown();
    m_env.slot.release(owner());
    return offer;
}

void RecoveryNoticeController::keep() {
    if (const auto offer = takeOffer(); offer && offer->onKeep) offer->onKeep();
}

void RecoveryNoticeController::discard() {
    if (const auto offer = takeOffer(); offer && offer->onDiscard) offer->onDiscard();
}

} // namespace vantle
