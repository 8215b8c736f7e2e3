#include "platform/x11/X11KeyCombination.h"

#include "platform/x11/X11Connection.h"

#include <xcb/xcb_keysyms.h>

#include <algorithm>
#include <initializer_list>

namespace vantle {

namespace {

// Keysyms of the X protocol.
constexpr xcb_keysym_t kLatinB = 0x0062;
constexpr xcb_keysym_t kScrollLock = 0xff14;
constexpr xcb_keysym_t kNumLock = 0xff7f;
constexpr xcb_keysym_t kAltL = 0xffe9;
constexpr xcb_keysym_t kAltR = 0xffea;
constexpr xcb_keysym_t kSuperL = 0xffeb;
constexpr xcb_keysym_t kSuperR = 0xffec;

/// The physical B key, numbered alike by all servers on the kernel's input devices.
constexpr xcb_keycode_t kEngravedB = 56;

constexpr std::uint16_t kAllModifiers = 0xff; ///< low byte; buttons are above

struct FreeSymbols {
    void operator()(xcb_key_symbols_t* symbols) const { xcb_key_symbols_free(symbols); }
};

/// A snapshot of the keyboard and modifier maps.
class Keyboard {
public:
    explicit Keyboard(X11Connection& connection)
        : m_symbols(xcb_key_symbols_alloc(connection.xcb()))
        , m_modifiers(connection.reply<xcb_get_modifier_mapping_reply>(
              xcb_get_modifier_mapping(connection.xcb()))) {}

    [[nodiscard]] bool isReadable() const { return m_symbols && m_modifiers; }

    [[nodiscard]] std::vector<xcb_keycode_t> codes(xcb_keysym_t symbol) const {
        const XcbOwned<xcb_keycode_t> list(xcb_key_symbols_get_keycode(m_symbols.get(), symbol));
        std::vector<xcb_keycode_t> codes;
        for (const auto* code = list.get(); code != nullptr && *code != XCB_NO_SYMBOL; ++code)
            codes.push_back(*code);
        return codes;
    }

    /// Returns the modifiers of the first of these symbols that sets any.
    [[nodiscard]] std::uint16_t mask(std::initializer_list<xcb_keysym_t> symbols) const {
        for (const auto symbol : symbols) {
            std::uint16_t mask = 0;
            for (const auto code : codes(symbol))
                mask |= maskOf(code);
            if (mask != 0) return mask;
        }
        return 0;
    }

private:
    [[nodiscard]] std::uint16_t maskOf(xcb_keycode_t code) const {
        // Eight rows of equal length, one per modifier.
        const auto* table = xcb_get_modifier_mapping_keycodes(m_modifiers.get());
        const int perRow = m_modifiers->keycodes_per_modifier;
        std::uint16_t mask = 0;
        for (int row = 0; row < 8; ++row)
            for (int column = 0; column < perRow; ++column)
                if (table[row * perRow + column] == code)
                    mask |= static_cast<std::uint16_t>(1U << row);
        return mask;
    }

    std::unique_ptr<xcb_key_symbols_t, FreeSymbols> m_symbols;
    XcbOwned<xcb_get_modifier_mapping_reply_t> m_modifiers;
};

/// Returns all unions of the masks, starting with the empty one.
std::vector<std::uint16_t> unions(std::initializer_list<std::uint16_t> masks) {
    std::vector<std::uint16_t> all{0};
    for (const auto mask : masks) {
        const auto known = all.size();
        for (std::size_t i = 0; i < known; ++i) {
            const auto with = static_cast<std::uint16_t>(all[i] | mask);
            if (std::ranges::find(all, with) == all.end()) all.push_back(with);
        }
    }
    return all;
}

} // namespace

bool X11KeyCombination::hasCode(xcb_keycode_t code) const {
    return std::ranges::find(codes, code) != codes.end();
}

bool X11KeyCombination::matches(xcb_keycode_t code, std::uint16_t state) const {
    std::uint16_t locks = 0;
    for (const auto mask : lockStates)
        locks |= mask;
    return hasCode(code) && (state & kAllModifiers & ~locks) == modifiers;
}

std::optional<X11KeyCombination> X11KeyCombination::altSuperB(X11Connection& connection) {
    if (!connection.isAlive()) return std::nullopt;
    const Keyboard keyboard(connection);
    if (!keyboard.isReadable()) return std::nullopt;

    const auto alt = keyboard.mask({kAltL, kAltR});
    const auto super = keyboard.mask({kSuperL, kSuperR});
    if (alt == 0 || super == 0) return std::nullopt;

    X11KeyCombination found;
    found.modifiers = alt | super;
    found.codes = keyboard.codes(kLatinB);
    if (found.codes.empty()) found.codes.push_back(kEngravedB);
    // A lock key that shares a modifier with the combination cannot vary.
    const auto lock = [&](std::uint16_t mask) {
        return static_cast<std::uint16_t>(mask & ~found.modifiers);
    };
    found.lockStates = unions(
        {XCB_MOD_MASK_LOCK, lock(keyboard.mask({kNumLock})), lock(keyboard.mask({kScrollLock}))});
    connection.drain(); // xcb waited for the keyboard map without reply()
    return found;
}

} // namespace vantle
