// The raw button presses from the X server.
#pragma once

#include "platform/x11/X11Connection.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vantle {

/// Raw events of the input extension, sent in addition to normal ones and regardless of grabs.
/// Selected while there is a watch. Under Xwayland only presses over X11 windows. Main thread.
class X11RawPresses {
public:
    /// `connection` must outlive this object.
    explicit X11RawPresses(X11Connection& connection) : m_connection(connection) {}

    /// Whether the server has version 2 of the extension. Round trips on the first call.
    [[nodiscard]] bool isAvailable();

    class Watch;
    /// Calls `pressed` with the number of each pressed button, wheel included, until the watch is
    /// destroyed, also inside the call. Null when unavailable. The watch must not outlive this
    /// object.
    [[nodiscard]] std::unique_ptr<Watch> watch(std::function<void(std::uint32_t button)> pressed);

private:
    void select(std::uint32_t mask);

    X11Connection& m_connection;
    bool m_wasAsked = false;
    std::uint8_t m_opcode = 0; ///< of the extension; 0 until known
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
