#include "platform/x11/X11IdleSource.h"

#include "platform/x11/X11Connection.h"

#include <xcb/screensaver.h>

namespace vantle {

X11IdleSource::X11IdleSource(X11Connection& connection)
    : m_connection(connection)
    , m_available(connection.extension(xcb_screensaver_id) != nullptr) {}

std::optional<double> X11IdleSource::secondsSinceLastInput() {
    if (!m_available || !m_connection.isAlive()) return std::nullopt;
    const auto info = m_connection.reply<xcb_screensaver_query_info_reply>(
        xcb_screensaver_query_info(m_connection.xcb(), m_connection.root()));
    if (!info) return std::nullopt;
    return info->ms_since_user_input / 1000.0;
}

} // namespace vantle
