#include "platform/x11/X11PointerPresses.h"

#include <QCursor>

#include <xcb/xinput.h>

namespace vantle {

namespace {

constexpr std::uint32_t kLeftButton = 1;
constexpr std::uint32_t kRightButton = 3;

} // namespace

X11PointerPresses::X11PointerPresses(X11Connection& connection) : m_connection(connection) {}

void X11PointerPresses::watch() {
    if (m_opcode == 0) {
        const auto* extension = m_connection.extension(xcb_input_id);
        if (extension == nullptr) return;
        // The server sends nothing of the second version to who has not asked for it.
        const auto version = m_connection.reply<xcb_input_xi_query_version_reply>(
            xcb_input_xi_query_version(m_connection.xcb(), 2, 2));
        if (!version || version->major_version < 2) return;
        m_opcode = extension->major_opcode;
        m_events =
            m_connection.subscribe(XCB_GE_GENERIC, [this](const auto& event) { onEvent(event); });
    }
    select(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS);
}

void X11PointerPresses::ignore() {
    if (m_opcode != 0) select(0);
}

void X11PointerPresses::select(std::uint32_t mask) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const request{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &request.head);
    m_connection.flush();
}

void X11PointerPresses::onEvent(const xcb_generic_event_t& event) {
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (generic.extension != m_opcode || generic.event_type != XCB_INPUT_RAW_BUTTON_PRESS) return;
    const auto& press = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
    if (press.detail != kLeftButton && press.detail != kRightButton) return;
    Q_EMIT pressed(QCursor::pos());
}

} // namespace vantle
