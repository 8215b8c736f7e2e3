#include "platform/x11/X11IdleSource.h"

#include "platform/x11/X11Connection.h"

#include <xcb/screensaver.h>

namespace vantle {

X11IdleSource::X11IdleSource(X11Connection& connection)
    : m_connection(connection)
    , m_available(connection.extension(xcb_screensaver_id) != nullptr) {
    if (m_available)
        connect(&m_connection, &X11Connection::broken, this, &IdleSource::canTellChanged);
}

bool X11IdleSource::canTell() const { return m_available && m_connection.isAlive(); }

std::optional<double> X11IdleSource::secondsSinceLastInput() {
    if (!canTell()) return std::nullopt;
    const auto info = m_connection.reply<xcb_screensaver_query_info_reply>(
        xcb_screensaver_query_info(m_connection.xcb(), m_connection.root()));
    if (!info) return std::nullopt;
    return info->ms_since_user_input / 1000.0;
}

} // namespace vantle
