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
    const auto first =
        std::ranges::find_if(m_sources, [](const auto& source) { return source->canTell(); });
    return first == m_sources.end() ? std::nullopt : (*first)->secondsSinceLastInput();
}

std::optional<bool> FirstIdleSource::isInhibited() const {
    const auto first =
        std::ranges::find_if(m_sources, [](const auto& source) { return source->canTell(); });
    return first == m_sources.end() ? std::nullopt : (*first)->isInhibited();
}

bool FirstIdleSource::canTell() const {
    return std::ranges::any_of(m_sources, [](const auto& source) { return source->canTell(); });
}

} // namespace vantle
