#include "platform/x11/X11ScreenPower.h"

#include <xcb/dpms.h>
#include <xcb/screensaver.h>

#include <array>

namespace vantle {

namespace {

enum Cause : unsigned { DisplaysOffCause, ScreenSaverCause, StatusCause };

// Short enough that a pause starts about when the screen turned off; one round trip each.
constexpr Seconds kPollInterval{3.0};
constexpr Seconds kPollTolerance{1.0};

} // namespace

X11ScreenPower::DisplaysOff X11ScreenPower::powerManagement(X11Connection& connection) {
    if (connection.extension(xcb_dpms_id) == nullptr) return {};
    const auto capable =
        connection.reply<xcb_dpms_capable_reply>(xcb_dpms_capable(connection.xcb()));
    if (!capable || capable->capable == 0) return {};
    return [&connection] {
        if (!connection.isAlive()) return false;
        const auto info = connection.reply<xcb_dpms_info_reply>(xcb_dpms_info(connection.xcb()));
        return info && info->state != 0 && info->power_level != XCB_DPMS_DPMS_MODE_ON;
    };
}

X11ScreenPower::X11ScreenPower(X11Connection& connection, Scheduler& scheduler,
                               DisplaysOff displaysOff)
    : m_connection(connection)
    , m_displaysOff(std::move(displaysOff)) {
    if (m_displaysOff) {
        const auto poll = [this] { setCause(DisplaysOffCause, m_displaysOff()); };
        poll();
        m_poll = scheduler.scheduleRepeatingTimer(kPollInterval, kPollTolerance, poll);
    }
    followScreenSaver();
    followStatus();
    connect(&connection, &X11Connection::broken, this, [this] {
        m_poll.reset();
        setCause(DisplaysOffCause, false);
        setCause(ScreenSaverCause, false);
        setCause(StatusCause, false);
    });
}

void X11ScreenPower::followScreenSaver() {
    const auto* extension = m_connection.extension(xcb_screensaver_id);
    if (extension == nullptr) return;
    m_screenSaver = m_connection.subscribe(
        extension->first_event + XCB_SCREENSAVER_NOTIFY, [this](auto& event) {
            const auto& notify = reinterpret_cast<const xcb_screensaver_notify_event_t&>(event);
            // The event may also be Cycle, which is a form of On.
            if (notify.state == XCB_SCREENSAVER_STATE_ON) setCause(ScreenSaverCause, true);
            if (notify.state == XCB_SCREENSAVER_STATE_OFF) setCause(ScreenSaverCause, false);
        });
    // Selects events before the query, so that no change is missed.
    xcb_screensaver_select_input(m_connection.xcb(), m_connection.root(),
                                 XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    const auto info = m_connection.reply<xcb_screensaver_query_info_reply>(
        xcb_screensaver_query_info(m_connection.xcb(), m_connection.root()));
    if (info && info->state == XCB_SCREENSAVER_STATE_ON) setCause(ScreenSaverCause, true);
}

void X11ScreenPower::followStatus() {
    if (!m_connection.isAlive()) return;
    m_statusAtom = m_connection.atoms(std::array{"_SCREENSAVER_STATUS"}).front();
    if (m_statusAtom == XCB_ATOM_NONE) return;
    m_properties = m_connection.subscribe(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_connection.root() && change.atom == m_statusAtom) readStatus();
    });
    m_connection.followRootProperties();
    readStatus();
}

void X11ScreenPower::readStatus() {
    // Its first value is the atom BLANK or LOCK; 0 while the screen shows the desktop.
    const auto status = m_connection.reply<xcb_get_property_reply>(xcb_get_property(
        m_connection.xcb(), 0, m_connection.root(), m_statusAtom, XCB_GET_PROPERTY_TYPE_ANY, 0, 1));
    const auto state = numbersOf(status.get());
    setCause(StatusCause, !state.empty() && state.front() != 0);
}

} // namespace vantle
