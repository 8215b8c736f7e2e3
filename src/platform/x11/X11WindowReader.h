// The reader of a top-level window's application hints.
#pragma once

#include "platform/WindowHints.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <optional>

namespace vantle {

class X11Connection;

/// What a window's properties and the server tell of its application; null for none.
struct WindowReplies {
    const xcb_get_property_reply_t* windowClass = nullptr;
    const xcb_get_property_reply_t* machine = nullptr;
    const xcb_get_property_reply_t* gtkApplication = nullptr;
    const xcb_get_property_reply_t* kdeDesktopFile = nullptr;
    const xcb_get_property_reply_t* process = nullptr;
    std::optional<std::uint32_t> processOfServer;
};

/// Returns the hints in them, for a machine of that name. Pure; any thread.
[[nodiscard]] WindowHints hintsOf(const WindowReplies& replies, const QByteArray& host);

/// Requests all properties of a window at once: one round trip per window, and one more for each
/// dialog above another. Main thread.
class X11WindowReader {
public:
    /// Asks the server for atoms. `connection` must outlive this object.
    explicit X11WindowReader(X11Connection& connection);

    /// The root window's property that names the active window.
    [[nodiscard]] xcb_atom_t activeWindowAtom() const { return m_atoms[ActiveWindow]; }

    /// Returns the active window; XCB_NONE without one, or without a window manager that reports
    /// it.
    [[nodiscard]] xcb_window_t activeWindow();

    /// The root window's property that lists supported features.
    [[nodiscard]] xcb_atom_t supportedAtom() const { return m_atoms[Supported]; }

    /// Whether the window manager reports the active window.
    [[nodiscard]] bool tellsActiveWindow();

    /// Returns the hints of the window's application; a dialog has those of its parent. Empty for
    /// docks, desktops, unmanaged and destroyed windows.
    ///
    /// The process id is the server's, since inside a sandbox a program knows another one. Without
    /// the server's extension it is the program's.
    [[nodiscard]] std::optional<WindowHints> read(xcb_window_t window);

    /// Returns the hints of the focused window of any kind; empty when no window has the focus.
    [[nodiscard]] std::optional<WindowHints> readFocus();

    /// Whether a change of that property may change the result of `read`.
    [[nodiscard]] bool isIdentity(xcb_atom_t property) const;

private:
    enum Atom : std::size_t {
        ActiveWindow,
        Supported,
        ProcessId,
        WindowType,
        TypeDock,
        TypeDesktop,
        GtkApplicationId,
        KdeDesktopFile,
        Utf8,
        AtomCount
    };
    struct Window {
        WindowHints hints;
        xcb_window_t transientFor = XCB_NONE;
        bool isApplication = true;
    };

    [[nodiscard]] std::optional<Window> readOne(xcb_window_t window);
    [[nodiscard]] bool isApplicationType(const xcb_get_property_reply_t* types) const;

    X11Connection& m_connection;
    std::array<xcb_atom_t, AtomCount> m_atoms{};
    const QByteArray m_host;
    const bool m_serverKnowsProcesses;
};

} // namespace vantle
