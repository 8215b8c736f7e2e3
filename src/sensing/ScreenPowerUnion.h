// One answer from several sources of whether the screens sleep.
#pragma once

#include "platform/CausedScreenPower.h"

#include <memory>
#include <vector>

namespace vantle {

/// Asleep while any of its sources is. However many sources overlap, there is one `slept` when the
/// first goes to sleep and one `woke` when the last is back. Sources that sleep at construction
/// count, without an edge. Main thread.
class ScreenPowerUnion final : public CausedScreenPower {
    Q_OBJECT

public:
    /// At most 32 sources.
    explicit ScreenPowerUnion(std::vector<std::unique_ptr<ScreenPower>> sources);

private:
    std::vector<std::unique_ptr<ScreenPower>> m_sources;
};

} // namespace vantle
