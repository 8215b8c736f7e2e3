#include "app/launch/RecoveryActions.h"

#include <utility>

namespace vantle {

void RecoveryActions::show(const Session&, std::function<void()> onDiscard,
                           std::function<void()> onKeep) {
    m_onDiscard = std::move(onDiscard);
    m_onKeep = std::move(onKeep);
}

void RecoveryActions::hideForEviction() {
    m_onDiscard = nullptr;
    m_onKeep = nullptr;
}

void RecoveryActions::keep() {
    const auto keep = std::exchange(m_onKeep, nullptr);
    m_onDiscard = nullptr;
    if (keep) keep();
}

void RecoveryActions::discard() {
    const auto discard = std::exchange(m_onDiscard, nullptr);
    m_onKeep = nullptr;
    if (discard) discard();
}

} // namespace vantle
