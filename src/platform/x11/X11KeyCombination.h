// What the server has to be asked for so that a combination of keys is heard.
#pragma once

#include <xcb/xproto.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

class X11Connection;

struct X11KeyCombination {
    std::vector<xcb_keycode_t> codes; ///< every key that gives the letter
    std::uint16_t modifiers = 0;      ///< that must be held
    /// Each state of the lock keys: grabs match modifiers exactly, so each needs its own.
    std::vector<std::uint16_t> lockStates;

    [[nodiscard]] bool hasCode(xcb_keycode_t code) const;
    /// Whether a press with that code and modifier state is this combination.
    [[nodiscard]] bool matches(xcb_keycode_t code, std::uint16_t state) const;

    friend bool operator==(const X11KeyCombination&, const X11KeyCombination&) = default;

    /// Alt+Super+B as the keyboard map has it now. Empty when the map has no Alt or no Super, or
    /// the server is gone. Where no key gives the letter b, as with only a Greek layout, the key
    /// that has it on a Latin keyboard is taken.
    [[nodiscard]] static std::optional<X11KeyCombination> altSuperB(X11Connection& connection);
};

} // namespace vantle
