// The idle time from a desktop that reports only start and end.
#pragma once

#include "base/Clock.h"

namespace vantle {

/// Some desktops have no counter: they report `shortWhile` without input, and the first input after
/// it. Sleep of the machine counts as time without input. While the user is active the time is
/// exact to `shortWhile`. Main thread.
class IdleEvents {
public:
    /// The time without input after which the desktop must report `idled`.
    static constexpr Seconds shortWhile{1.0};

    /// Starts as if input came now. `clock` must outlive this object.
    explicit IdleEvents(const Clock& clock);

    void idled();
    void resumed();

    [[nodiscard]] bool isIdle() const { return m_isIdle; }
    /// The time since the last report or the construction, without sleep.
    [[nodiscard]] Seconds sinceLastEvent() const;

    /// Returns the seconds since the last input, at least 0.
    [[nodiscard]] double secondsSinceLastInput();

private:
    const Clock& m_clock;
    bool m_isIdle = false;
    Seconds m_eventAt;     ///< awake
    Clock::Uptime m_input; ///< the last input; while active, the last query
};

} // namespace vantle
