#include "platform/wayland/WaylandConnection.h"

#include <algorithm>
#include <cerrno>
#include <wayland-client.h>

namespace vantle {

namespace {

/// libwayland logs to standard error, but the program prints nothing.
void discard(const char* /*format*/, va_list /*arguments*/) {}

} // namespace

void WaylandConnection::Disconnect::operator()(wl_display* display) const {
    wl_display_disconnect(display);
}

WaylandConnection::WaylandConnection() {
    wl_log_set_handler_client(discard);
    m_display.reset(wl_display_connect(nullptr));
    begin();
}

WaylandConnection::WaylandConnection(int socket) {
    wl_log_set_handler_client(discard);
    m_display.reset(wl_display_connect_to_fd(socket));
    begin();
}

WaylandConnection::~WaylandConnection() {
    if (m_registry != nullptr) wl_registry_destroy(m_registry);
}

bool WaylandConnection::isAlive() const { return m_display != nullptr && !m_isBroken; }

void WaylandConnection::begin() {
    if (!m_display) return;
    const int socket = wl_display_get_fd(m_display.get());
    m_readable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    m_writable->setEnabled(false);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &WaylandConnection::read);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &WaylandConnection::flush);

    static constexpr wl_registry_listener kRegistry{
        .global =
            [](void* data, wl_registry*, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                auto* const self = static_cast<WaylandConnection*>(data);
                self->m_globals.push_back({name, interface, version});
                if (self->m_isReady) Q_EMIT self->added(WaylandGlobal{name, interface, version});
            },
        .global_remove =
            [](void* data, wl_registry*, std::uint32_t name) {
                auto* const self = static_cast<WaylandConnection*>(data);
                std::erase_if(self->m_globals,
                              [name](const auto& global) { return global.name == name; });
                Q_EMIT self->removed(name);
            }};
    m_registry = wl_display_get_registry(m_display.get());
    wl_registry_add_listener(m_registry, &kRegistry, this);

    // Its reply follows all initial globals.
    static constexpr wl_callback_listener kSync{
        .done = [](void* data, wl_callback* callback, std::uint32_t) {
            wl_callback_destroy(callback);
            auto* const self = static_cast<WaylandConnection*>(data);
            self->m_isReady = true;
            Q_EMIT self->ready();
        }};
    wl_callback_add_listener(wl_display_sync(m_display.get()), &kSync, this);
    flush();
}

void WaylandConnection::read() {
    wl_display* const display = m_display.get();
    while (isAlive() && wl_display_prepare_read(display) != 0)
        if (wl_display_dispatch_pending(display) < 0) return breakOff();
    if (!isAlive()) return;
    if (wl_display_read_events(display) < 0 && errno != EAGAIN) return breakOff();
    if (wl_display_dispatch_pending(display) < 0) return breakOff();
    flush();
}

void WaylandConnection::flush() {
    if (!isAlive()) return;
    const bool isFull = wl_display_flush(m_display.get()) < 0;
    // Reads a lost connection to its end first: it may hold the compositor's error.
    m_writable->setEnabled(isFull && errno == EAGAIN);
}

void WaylandConnection::breakOff() {
    if (m_isBroken) return;
    m_isBroken = true;
    m_readable->setEnabled(false);
    m_writable->setEnabled(false);
    m_globals.clear();
    Q_EMIT broken();
}

std::optional<WaylandGlobal> WaylandConnection::global(const char* interface) const {
    const auto found = std::ranges::find_if(
        m_globals, [interface](const auto& global) { return global.interface == interface; });
    return found == m_globals.end() ? std::nullopt : std::optional(*found);
}

void* WaylandConnection::bindProxy(const WaylandGlobal& global, const wl_interface& interface,
                                   std::uint32_t newest) {
    return wl_registry_bind(m_registry, global.name, &interface, std::min(global.version, newest));
}

} // namespace vantle
