#include "surfaces/cards/CornerCard.h"

#include "surfaces/cards/CardPlacement.h"

#include <utility>

namespace vantle {

CornerCard::CornerCard(const CardEnvironment& environment)
    : m_scheduler(environment.scheduler)
    , m_stage(environment.stage) {
    QObject::connect(&m_stage, &CardStage::cardScreenChanged, &m_screenWatch,
                     [this] { followScreen(); });
}

bool CornerCard::present(CardView view, const std::shared_ptr<QObject>& model) {
    takeDown();
    const auto screen = m_stage.cardScreen();
    if (!screen) return false;
    m_panel = m_stage.raise(view, model);
    if (!m_panel) return false;
    m_model = model;
    m_panel->showAt(cardplacement::card(*screen, m_panel->size()));
    return true;
}

void CornerCard::followScreen() {
    const auto screen = m_stage.cardScreen();
    // Without a screen the card keeps its slot until one is plugged in.
    if (!m_panel || !screen) return;
    const Placement place = cardplacement::card(*screen, m_panel->size());
    if (m_panel->frame() != place.ground()) m_panel->showAt(place);
}

void CornerCard::dismissAfter(Seconds delay, std::function<void()> work) {
    m_autoDismissTimer = m_scheduler.scheduleOnce(delay, std::move(work));
}

bool CornerCard::takeDown() {
    m_autoDismissTimer.reset();
    if (!m_panel) return false;
    m_stage.dismiss(std::move(m_panel));
    // Deferred, since a signal of the model may have led here.
    m_scheduler.post([spent = std::move(m_model)] {});
    return true;
}

} // namespace vantle
