// Reads what a top-level window says about its application.
#pragma once

#include "platform/WindowHints.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <array>
#include <optional>

namespace vantle {

class X11Connection;

/// Main thread. All properties of a window are asked for at once, so a window costs one round trip,
/// and each dialog on top of another window one more.
class X11WindowReader {
public:
    /// Asks the server for the atoms. `connection` must outlive this.
    explicit X11WindowReader(X11Connection& connection);

    /// The property of the root window that names the active window.
    [[nodiscard]] xcb_atom_t activeWindowAtom() const { return m_atoms[ActiveWindow]; }

    /// The active window; XCB_NONE when there is none, or no window manager that says so.
    [[nodiscard]] xcb_window_t activeWindow();

    /// The property of the root window that lists what the window manager supports.
    [[nodiscard]] xcb_atom_t supportedAtom() const { return m_atoms[Supported]; }

    /// Whether the window manager says which window is active.
    [[nodiscard]] bool tellsActiveWindow();

    /// The hints of the application that the window belongs to: a dialog answers with those of the
    /// window that it stands over. Empty for docks, desktops and windows outside the window
    /// manager's care, and when the window is gone.
    ///
    /// The process is the one that the server knows: inside a sandbox a program can only tell its
    /// number in there. Without the server's extension it is what the program tells.
    [[nodiscard]] std::optional<WindowHints> read(xcb_window_t window);

    /// What the window with the keyboard tells of itself, whatever kind of window it is. Empty when
    /// no window has the keyboard.
    [[nodiscard]] std::optional<WindowHints> readFocus();

    /// Whether a change of that property may change what `read` tells.
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
