// The X server's counter of the time without input.
#pragma once

#include "base/Clock.h"
#include "platform/IdleSource.h"

namespace vantle {

class X11Connection;

/// Asks the MIT-SCREEN-SAVER extension. Empty where the server lacks it or is gone.
///
/// The server's counter stands still while the machine sleeps. The time slept is added until the
/// next input; where the input and the sleep lie between the same two questions, which came first
/// can't be told, and the user counts as back.
///
/// The counter falls at presses, motion and wheel of any client's input, and, which can't be told
/// apart, at releases and when a program resets the screen saver, as video players do. It must not
/// be asked in a Wayland session: Xwayland sees only the input that goes to X11 windows.
class X11IdleSource final : public IdleSource {
public:
    /// Both must outlive this.
    X11IdleSource(X11Connection& connection, const Clock& clock);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override;

private:
    X11Connection& m_connection;
    const Clock& m_clock;
    const bool m_available;
    double m_counter = 0;    ///< seconds at the last question
    Seconds m_askedAt;       ///< uptime without sleep at the last question
    Seconds m_asleepAtInput; ///< how long the machine had slept in all by the last input
};

} // namespace vantle
