// Keep or discard a recovered session without a card: by the actions that the desktop offers.
#pragma once

#include "app/Collaborators.h"

namespace vantle {

/// Holds the offer until it is answered. Main thread.
class RecoveryActions final : public collaborators::Recovery {
public:
    void show(const Session& session, std::function<void()> onDiscard,
              std::function<void()> onKeep) override;
    void hideForEviction() override;

    /// Both do nothing when there is no offer.
    void keep();
    void discard();

private:
    std::function<void()> m_onDiscard;
    std::function<void()> m_onKeep;
};

} // namespace vantle
