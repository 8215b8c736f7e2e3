// The part that the controllers of cards share: one card in the corner, and its time-out.
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

/// What the controllers of cards work with. All of it must outlive them.
struct CardEnvironment {
    Scheduler& scheduler;
    const Preferences& preferences;
    SkillList& skills;
    NotificationCenter& notifications;
    TopRightCardSlot& slot;
    CardStage& stage;
    OpenQuestions& questions;
};

/// Up from present() until takeDown(). Main thread.
class CornerCard {
public:
    explicit CornerCard(const CardEnvironment& environment);

    /// Puts the view in the corner of the screen in use, and follows that when screens come and go.
    /// False where there is no screen.
    [[nodiscard]] bool present(CardView view, const std::shared_ptr<QObject>& model);

    /// Calls `work` unless the card is touched or gone before.
    void dismissAfter(Seconds delay, std::function<void()> work);

    /// The person has taken an interest: the card stays until it is closed.
    void stay() { m_autoDismissTimer.reset(); }

    /// Takes the card off the screen. Whether it was up.
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
