// The differences of an Xwayland server.
#pragma once

namespace vantle {

class X11Connection;

struct XwaylandTraits {
    /// Xwayland sees only input to X11 windows, knows only those windows, and knows the pointer
    /// only over them.
    bool isXwayland = false;
    /// Whether the server passes input regions on to the compositor.
    bool passesInputRegions = true;
};

/// Asks the server instead of the environment: a program started by the session bus may lack the
/// variables, and one in a Wayland session may use another X server. A few round trips. A lost
/// server counts as a plain one. Main thread.
[[nodiscard]] XwaylandTraits xwaylandTraits(X11Connection& x11);

} // namespace vantle
