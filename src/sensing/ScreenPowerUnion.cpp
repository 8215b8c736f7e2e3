#include "sensing/ScreenPowerUnion.h"

#include <algorithm>

namespace vantle {

ScreenPowerUnion::ScreenPowerUnion(std::vector<std::unique_ptr<ScreenPower>> sources)
    : m_sources(std::move(sources))
    , m_asleep(anyAsleep()) {
    for (const auto& source : m_sources) {
        connect(source.get(), &ScreenPower::slept, this, &ScreenPowerUnion::update);
        connect(source.get(), &ScreenPower::woke, this, &ScreenPowerUnion::update);
    }
}

bool ScreenPowerUnion::anyAsleep() const {
    return std::ranges::any_of(m_sources, [](const auto& source) { return source->asleep(); });
}

void ScreenPowerUnion::update() {
    const bool asleep = anyAsleep();
    if (asleep == m_asleep) return;
    m_asleep = asleep;
    if (asleep)
        Q_EMIT slept();
    else
        Q_EMIT woke();
}

} // namespace vantle
