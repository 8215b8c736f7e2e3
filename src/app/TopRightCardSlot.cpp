#include "app/TopRightCardSlot.h"

#include <utility>

namespace vantle {

bool TopRightCardSlot::request(Owner owner, Kind kind, std::function<void()> evict,
                               std::function<void()> represent) {
    // A card may renew its request, also as another kind, without leaving the corner.
    if (m_holder && m_holder->owner != owner) {
        if (kind <= m_holder->kind) {
            if (kind == Kind::Recovery) m_queued = std::move(represent);
            return false;
        }
        evictHolder();
    }
    m_holder = Holder{owner, kind, std::move(evict), std::move(represent)};
    return true;
}

void TopRightCardSlot::takeForSummary(Owner owner, std::function<void()> evict) {
    if (m_holder && m_holder->owner != owner && m_holder->kind != Kind::Summary) evictHolder();
    m_holder = Holder{owner, Kind::Summary, std::move(evict), {}};
}

void TopRightCardSlot::evictHolder() {
    Holder evicted = std::move(*m_holder);
    // Cleared first, so that the evicted card's own release has no effect.
    m_holder.reset();
    if (evicted.kind == Kind::Recovery) m_queued = std::move(evicted.represent);
    if (evicted.evict) evicted.evict();
}

void TopRightCardSlot::release(Owner owner) {
    if (!m_holder || m_holder->owner != owner) return;
    m_holder.reset();
    if (const auto queued = std::exchange(m_queued, {})) queued();
}

} // namespace vantle
