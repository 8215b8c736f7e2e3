// Presses of the pointer as the X server tells them to whoever asks.
#pragma once

#include "platform/PointerPresses.h"
#include "platform/x11/X11Connection.h"

namespace vantle {

/// Raw events of the input extension: they come beside those of the windows, grabs or not. Without
/// the extension nothing is told. Under Xwayland only presses over X11 windows are.
class X11PointerPresses final : public PointerPresses {
    Q_OBJECT

public:
    /// `connection` must outlive this.
    explicit X11PointerPresses(X11Connection& connection);

    void watch() override;
    void ignore() override;

private:
    void select(std::uint32_t mask);
    void onEvent(const xcb_generic_event_t& event);

    X11Connection& m_connection;
    X11Connection::Subscription m_events;
    std::uint8_t m_opcode = 0; ///< of the extension; 0 while it is not known to be there
};

} // namespace vantle
