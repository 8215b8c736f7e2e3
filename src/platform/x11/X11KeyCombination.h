// The key codes and modifiers of a combination on an X server.
//
// Main thread.
#pragma once

#include <xcb/xproto.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

class X11Connection;

struct X11KeyCombination {
    std::vector<xcb_keycode_t> codes; ///< all keys that produce the letter
    std::uint16_t modifiers = 0;      ///< required modifiers
    /// Each state of the lock keys: grabs match modifiers exactly, so each needs its own.
    std::vector<std::uint16_t> lockStates;

    [[nodiscard]] bool hasCode(xcb_keycode_t code) const;
    /// Whether a press with that code and modifier state is the combination.
    [[nodiscard]] bool matches(xcb_keycode_t code, std::uint16_t state) const;

    friend bool operator==(const X11KeyCombination&, const X11KeyCombination&) = default;

    /// Returns Alt+Super+B in the current keyboard map. Empty without Alt or Super, or without a
    /// server. When no key produces b, as in a Greek-only layout, uses the key that does on a Latin
    /// keyboard.
    [[nodiscard]] static std::optional<X11KeyCombination> altSuperB(X11Connection& connection);
};

} // namespace vantle
