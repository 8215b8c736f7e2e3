// The idle time from the X server's counter.
#pragma once

#include "base/Clock.h"
#include "platform/IdleSource.h"

namespace vantle {

class X11Connection;

/// The MIT-SCREEN-SAVER extension. Empty when the server lacks it or is lost. Main thread.
///
/// The counter stops while the machine sleeps, so slept time is added until the next input; when
/// input and sleep fall between the same two readings, their order is unknown and the user counts
/// as back.
///
/// The counter resets at presses, motion and wheel of any client's input, and, indistinguishably,
/// at releases and when a program resets the screen saver, as video players do. Do not use under
/// Xwayland, which sees only input to X11 windows.
class X11IdleSource final : public IdleSource {
public:
    /// Both must outlive this object.
    X11IdleSource(X11Connection& connection, const Clock& clock);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override;

private:
    X11Connection& m_connection;
    const Clock& m_clock;
    const bool m_available;
    double m_counter = 0;    ///< seconds, at the last reading
    Seconds m_askedAt;       ///< uptime without sleep, at the last reading
    Seconds m_asleepAtInput; ///< total sleep of the machine at the last input
};

} // namespace vantle
