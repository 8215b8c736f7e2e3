#include "platform/FirstIdleSource.h"

#include <algorithm>
#include <utility>

namespace vantle {

FirstIdleSource::FirstIdleSource(std::vector<std::unique_ptr<IdleSource>> sources)
    : m_sources(std::move(sources))
    , m_could(canTell()) {
    for (const auto& source : m_sources)
        connect(source.get(), &IdleSource::canTellChanged, this, [this] {
            if (std::exchange(m_could, canTell()) != canTell()) Q_EMIT canTellChanged();
        });
}

std::optional<double> FirstIdleSource::secondsSinceLastInput() {
    IdleSource* const source = first();
    return source ? source->secondsSinceLastInput() : std::nullopt;
}

std::optional<bool> FirstIdleSource::isInhibited() const {
    const IdleSource* const source = first();
    return source ? source->isInhibited() : std::nullopt;
}

bool FirstIdleSource::canTell() const { return first() != nullptr; }

IdleSource* FirstIdleSource::first() const {
    const auto found =
        std::ranges::find_if(m_sources, [](const auto& source) { return source->canTell(); });
    return found == m_sources.end() ? nullptr : found->get();
}

} // namespace vantle
