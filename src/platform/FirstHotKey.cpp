#include "platform/FirstHotKey.h"

#include <algorithm>
#include <utility>

namespace vantle {

FirstHotKey::FirstHotKey(std::vector<std::unique_ptr<OfferedHotKey>> ways)
    : m_ways(std::move(ways)) {
    for (const auto& way : m_ways) {
        way->onOfferedChanged = [this] {
            if (m_isWanted) tell(choose());
        };
        way->onOutcomeChanged = [this, from = way.get()](const Outcome& outcome) {
            if (from == m_taken) tell(outcome);
        };
    }
}

FirstHotKey::~FirstHotKey() { leave(); }

int FirstHotKey::installHandler(std::function<void()> pressed) {
    m_pressed = std::move(pressed);
    return 0;
}

HotKeyPort::Outcome FirstHotKey::registerKey() {
    if (m_isWanted && m_outcome.registration == Registration::Registered) return m_outcome;
    leave();
    m_isWanted = true;
    return m_outcome = choose();
}

void FirstHotKey::unregisterKey() {
    leave();
    m_isWanted = false;
}

QString FirstHotKey::wayToAllow() const { return m_taken ? m_taken->wayToAllow() : QString(); }

HotKeyPort::Outcome FirstHotKey::allow(bool allowed) {
    if (!m_taken) return m_outcome;
    m_allowed = allowed ? wayToAllow() : QString();
    return m_outcome = m_taken->allow(allowed);
}

bool FirstHotKey::isReady(const OfferedHotKey& way) const {
    return way.wayToAllow().isEmpty() || way.wayToAllow() == m_allowed;
}

HotKeyPort::Outcome FirstHotKey::choose() {
    const auto mayBeOffered = [](const auto& way) { return way->isOffered().value_or(true); };
    auto first = std::ranges::find_if(
        m_ways, [&](const auto& way) { return isReady(*way) && mayBeOffered(way); });
    if (first == m_ways.end()) first = std::ranges::find_if(m_ways, mayBeOffered);
    if (first != m_ways.end() && (*first)->isOffered()) return take(first->get());
    leave();
    return {first == m_ways.end() ? Registration::NotOffered : Registration::Waiting};
}

HotKeyPort::Outcome FirstHotKey::take(OfferedHotKey* way) {
    if (way == m_taken) return m_outcome;
    leave();
    const int status = way->installHandler([this] {
        if (m_pressed) m_pressed();
    });
    if (status != 0) return {Registration::Failed, status};
    m_taken = way;
    way->recallAllowed(m_allowed);
    return way->registerKey();
}

void FirstHotKey::leave() {
    if (OfferedHotKey* const way = std::exchange(m_taken, nullptr)) {
        way->unregisterKey();
        way->removeHandler();
    }
}

void FirstHotKey::tell(const Outcome& outcome) {
    if (m_taken && outcome.registration == Registration::NotAllowed && m_allowed == wayToAllow())
        m_allowed.clear();
    if (std::exchange(m_outcome, outcome) != outcome && onOutcomeChanged) onOutcomeChanged(outcome);
}

} // namespace vantle
