// The X server's counter of the time without input.
#pragma once

#include "platform/IdleSource.h"

namespace vantle {

class X11Connection;

/// Asks the MIT-SCREEN-SAVER extension. Empty where the server lacks it or is gone.
///
/// The counter falls at presses, motion and wheel of any client's input, and, which can't be told
/// apart, at releases and when a program resets the screen saver, as video players do. It must not
/// be asked in a Wayland session: Xwayland sees only the input that goes to X11 windows.
class X11IdleSource final : public IdleSource {
public:
    /// `connection` must outlive this.
    explicit X11IdleSource(X11Connection& connection);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override;

private:
    X11Connection& m_connection;
    const bool m_available;
};

} // namespace vantle
