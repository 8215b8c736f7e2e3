// The sleep of the screens as the union of several causes.
#pragma once

#include "platform/ScreenPower.h"

#include <cstdint>

namespace vantle {

/// Asleep while any cause holds. Tells `slept` when the first begins and `woke` when the last has
/// ended, however they overlap. For sources of it to derive from; main thread.
class CausedScreenPower : public ScreenPower {
    Q_OBJECT

public:
    [[nodiscard]] bool asleep() const override { return m_causes != 0; }

protected:
    /// Whether that cause (0 to 31) holds now. Emits within the call; telling the same twice is of
    /// no effect.
    void setCause(unsigned cause, bool holds);

private:
    std::uint32_t m_causes = 0; ///< one bit a cause
};

} // namespace vantle
