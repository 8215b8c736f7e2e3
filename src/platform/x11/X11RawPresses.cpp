#include "platform/x11/X11RawPresses.h"

#include <xcb/xinput.h>

#include <utility>

namespace vantle {

bool X11RawPresses::isAvailable() {
    if (std::exchange(m_wasAsked, true)) return m_opcode != 0;
    const auto* const extension = m_connection.extension(xcb_input_id);
    if (extension == nullptr) return false;
    // The server sends version 2 events only to clients that negotiated it.
    const auto version = m_connection.reply<xcb_input_xi_query_version_reply>(
        xcb_input_xi_query_version(m_connection.xcb(), 2, 2));
    if (version && version->major_version >= 2) m_opcode = extension->major_opcode;
    return m_opcode != 0;
}

std::unique_ptr<X11RawPresses::Watch>
X11RawPresses::watch(std::function<void(std::uint32_t)> pressed) {
    if (!isAvailable()) return nullptr;
    auto events = m_connection.subscribe(
        XCB_GE_GENERIC,
        [opcode = m_opcode, tell = std::move(pressed)](const xcb_generic_event_t& event) {
            const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
            if (generic.extension != opcode || generic.event_type != XCB_INPUT_RAW_BUTTON_PRESS)
                return;
            tell(reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event).detail);
        });
    if (m_watches++ == 0) select(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS);
    return std::unique_ptr<Watch>(new Watch(*this, std::move(events)));
}

void X11RawPresses::select(std::uint32_t mask) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const request{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &request.head);
    m_connection.flush();
}

X11RawPresses::Watch::Watch(X11RawPresses& owner, X11Connection::Subscription events)
    : m_owner(owner)
    , m_events(std::move(events)) {}

X11RawPresses::Watch::~Watch() {
    if (--m_owner.m_watches == 0) m_owner.select(0);
}

} // namespace vantle
