// Whether the X server is one beside a Wayland compositor, and what it can do then.
#pragma once

namespace vantle {

class X11Connection;

struct XwaylandTraits {
    /// Then the server sees only the input that goes to X11 windows, knows only them, and places
    /// the pointer only while it is over one.
    bool isXwayland = false;
    /// Whether the compositor is told which part of a window feels the pointer.
    bool passesInputRegions = true;
};

/// Asks the server, not the environment: a program that the session bus started may have no
/// variable of its session, and one of a Wayland session may be pointed at another X server. A few
/// round trips. A server that is gone is a plain one.
[[nodiscard]] XwaylandTraits xwaylandTraits(X11Connection& x11);

} // namespace vantle
