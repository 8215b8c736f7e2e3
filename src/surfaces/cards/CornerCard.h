// The common part of card controllers: one card with a timeout.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/cards/CardStage.h"

#include <functional>
#include <memory>

namespace vantle {

class NotificationCenter;
class OpenQuestions;
class Preferences;
class SkillList;
class TopRightCardSlot;

/// The services of card controllers. All of them must outlive them.
struct CardEnvironment {
    Scheduler& scheduler;
    const Preferences& preferences;
    SkillList& skills;
    NotificationCenter& notifications;
    TopRightCardSlot& slot;
    CardStage& stage;
    OpenQuestions& questions;
};

/// A card is up from present() until takeDown(). Main thread.
class CornerCard {
public:
    explicit CornerCard(const CardEnvironment& environment);

    /// Shows the view in the corner of the screen in use, and moves it when screens change. Returns
    /// false without a screen.
    [[nodiscard]] bool present(CardView view, const std::shared_ptr<QObject>& model);

    /// Calls `work` after `delay`, unless the card is touched or removed before.
    void dismissAfter(Seconds delay, std::function<void()> work);

    /// The user touched the card: it stays until closed.
    void stay() { m_autoDismissTimer.reset(); }

    /// Removes the card. Returns whether it was up.
    bool takeDown();

    /// Null while the card is not up.
    [[nodiscard]] CardPanel* panel() const { return m_panel.get(); }

private:
    void followScreen();

    Scheduler& m_scheduler;
    CardStage& m_stage;
    std::unique_ptr<CardPanel> m_panel;
    std::shared_ptr<QObject> m_model;
    TimerHandle m_autoDismissTimer;
    QObject m_screenWatch; ///< context of the connection to the stage
};

} // namespace vantle
