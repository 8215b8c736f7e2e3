// One answer from several sources of whether the screens sleep.
#pragma once

#include "platform/ScreenPower.h"

#include <memory>
#include <vector>

namespace vantle {

/// Asleep while any of its sources is. However many sources overlap, there is one `slept` when the
/// first goes to sleep and one `woke` when the last is back. Sources that sleep at construction
/// count, without an edge. Main thread.
class ScreenPowerUnion final : public ScreenPower {
    Q_OBJECT

public:
    explicit ScreenPowerUnion(std::vector<std::unique_ptr<ScreenPower>> sources);

    [[nodiscard]] bool asleep() const override { return m_asleep; }

private:
    void update();
    [[nodiscard]] bool anyAsleep() const;

    std::vector<std::unique_ptr<ScreenPower>> m_sources;
    bool m_asleep;
};

} // namespace vantle
