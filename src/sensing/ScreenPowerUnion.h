// The union of several sources of screen sleep.
#pragma once

#include "platform/CausedScreenPower.h"

#include <memory>
#include <vector>

namespace vantle {

/// Asleep while any source is. Overlapping sources give one `slept`, when the first sleeps, and one
/// `woke`, when the last is awake. A source that sleeps at construction counts, without a signal.
/// Main thread.
class ScreenPowerUnion final : public CausedScreenPower {
    Q_OBJECT

public:
    /// Requires at most 32 sources.
    explicit ScreenPowerUnion(std::vector<std::unique_ptr<ScreenPower>> sources);

private:
    std::vector<std::unique_ptr<ScreenPower>> m_sources;
};

} // namespace vantle
