#include "platform/x11/X11IdleSource.h"

#include "base/MissedTime.h"
#include "platform/x11/X11Connection.h"

#include <xcb/screensaver.h>

namespace vantle {

namespace {

constexpr double kJitter = 0.5; // seconds between the server's clock and ours

} // namespace

X11IdleSource::X11IdleSource(X11Connection& connection, const Clock& clock)
    : m_connection(connection)
    , m_clock(clock)
    , m_available(connection.extension(xcb_screensaver_id) != nullptr)
    , m_askedAt(clock.uptime().awake)
    , m_asleepAtInput(clock.uptime().total - m_askedAt) {
    if (m_available)
        connect(&m_connection, &X11Connection::broken, this, &IdleSource::canTellChanged);
}

bool X11IdleSource::canTell() const { return m_available && m_connection.isAlive(); }

std::optional<double> X11IdleSource::secondsSinceLastInput() {
    if (!canTell()) return std::nullopt;
    const auto info = m_connection.reply<xcb_screensaver_query_info_reply>(
        xcb_screensaver_query_info(m_connection.xcb(), m_connection.root()));
    if (!info) return std::nullopt;
    const double counter = info->ms_since_user_input / 1000.0;
    const Clock::Uptime uptime = m_clock.uptime();
    const Seconds asleep = uptime.total - uptime.awake;
    const bool input = counter + kJitter < m_counter + (uptime.awake - m_askedAt).count();
    if (input) m_asleepAtInput = asleep;
    m_counter = counter;
    m_askedAt = uptime.awake;
    const Seconds slept = asleep - m_asleepAtInput;
    return slept < MissedTime::shortestSleep ? counter : counter + slept.count();
}

} // namespace vantle
