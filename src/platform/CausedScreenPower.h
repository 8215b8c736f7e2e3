// The sleep of the screens as the union of several causes.
#pragma once

#include "platform/ScreenPower.h"

#include <cstdint>

namespace vantle {

/// Asleep while any cause holds: emits `slept` when the first begins and `woke` when the last ends.
/// A base class for sources. Main thread.
class CausedScreenPower : public ScreenPower {
    Q_OBJECT

public:
    [[nodiscard]] bool asleep() const override { return m_causes != 0; }

protected:
    /// Sets whether that cause (0 to 31) holds. Emits within the call; repeated values have no
    /// effect.
    void setCause(unsigned cause, bool holds);

private:
    std::uint32_t m_causes = 0; ///< one bit per cause
};

} // namespace vantle
