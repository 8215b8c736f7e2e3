// Calls and videos, as the test says.
#pragma once

#include "platform/IdleInhibition.h"

#include <utility>

namespace vantle::fakes {

class FakeIdleInhibition final : public IdleInhibition {
public:
    /// An application begins or ends to keep the desktop awake.
    void hold(bool held) {
        if (std::exchange(m_held, held) != held) Q_EMIT changed();
    }
    /// The desktop turns out not to tell, or to tell.
    void setCanTell(bool canTell) {
        if (std::exchange(m_canTell, canTell) != canTell) Q_EMIT changed();
    }

    [[nodiscard]] bool isHeld() const override { return isFollowed && m_canTell && m_held; }
    [[nodiscard]] bool canTell() const override { return !isFollowed || m_canTell; }
    void setFollowed(bool followed) override {
        if (std::exchange(isFollowed, followed) != followed) Q_EMIT changed();
    }

    bool isFollowed = false;

private:
    bool m_held = false;
    bool m_canTell = true;
};

} // namespace vantle::fakes
