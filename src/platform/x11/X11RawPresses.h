// Presses of pointer buttons as the X server tells them, whatever window they go to.
#pragma once

#include "platform/x11/X11Connection.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vantle {

/// Raw events of the input extension: they come beside those of the windows, grabs or not. The
/// server is asked for them while there is a watch. Under Xwayland only presses over X11 windows
/// are told. Main thread.
class X11RawPresses {
public:
    /// `connection` must outlive this.
    explicit X11RawPresses(X11Connection& connection) : m_connection(connection) {}

    /// Whether the server has version 2 of the extension. Round trips the first time.
    [[nodiscard]] bool isAvailable();

    class Watch;
    /// Calls `pressed` with the number of each button that is pressed, the wheel's included, until
    /// the watch is destroyed, which may happen inside the call. Null when not available. The
    /// watch must not outlive this.
    [[nodiscard]] std::unique_ptr<Watch> watch(std::function<void(std::uint32_t button)> pressed);

private:
    void select(std::uint32_t mask);

    X11Connection& m_connection;
    bool m_wasAsked = false;
    std::uint8_t m_opcode = 0; ///< of the extension; 0 while it is not known to be there
    int m_watches = 0;
};

class X11RawPresses::Watch {
public:
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    friend class X11RawPresses;
    Watch(X11RawPresses& owner, X11Connection::Subscription events);

    X11RawPresses& m_owner;
    X11Connection::Subscription m_events;
};

} // namespace vantle
