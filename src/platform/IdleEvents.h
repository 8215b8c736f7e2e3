// The time without input, where a desktop tells only its beginning and its end.
#pragma once

#include "base/Clock.h"

namespace vantle {

/// Some desktops have no counter: they tell that there was no input for `shortWhile`, and the first
/// input after that. Sleep of the machine counts as time without input. While there is input it is
/// exact to `shortWhile`. Main thread.
class IdleEvents {
public:
    /// After this long without input the desktop is to tell `idled`.
    static constexpr Seconds shortWhile{1.0};

    /// As if there had been an input just now. `clock` must outlive this.
    explicit IdleEvents(const Clock& clock);

    void idled();
    void resumed();

    [[nodiscard]] bool isIdle() const { return m_isIdle; }
    /// How long ago that was told, or this was made; sleep does not count.
    [[nodiscard]] Seconds sinceLastEvent() const;

    /// Seconds since the last input, never negative.
    [[nodiscard]] double secondsSinceLastInput();

private:
    const Clock& m_clock;
    bool m_isIdle = false;
    Seconds m_eventAt;     ///< awake
    Clock::Uptime m_input; ///< the last input; while there is input, the last moment looked at
};

} // namespace vantle
