#include "platform/x11/X11Connection.h"

#include <QSocketNotifier>

#include <utility>
#include <vector>

namespace vantle {

namespace {

/// Set in the type of events that another client sent.
constexpr std::uint8_t kSentEvent = 0x80;

xcb_window_t rootOfScreen(const xcb_setup_t* setup, int number) {
    auto screens = xcb_setup_roots_iterator(setup);
    for (; screens.rem > 0 && number > 0; --number)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data->root : XCB_NONE;
}

} // namespace

std::span<const std::uint32_t> numbersOf(const xcb_get_property_reply_t* property) {
    if (property == nullptr || property->format != 32) return {};
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(property)),
            property->value_len};
}

QByteArrayView bytesOf(const xcb_get_property_reply_t* property) {
    if (property == nullptr || property->format != 8) return {};
    return {static_cast<const char*>(xcb_get_property_value(property)),
            xcb_get_property_value_length(property)};
}

X11Connection::X11Connection(const QByteArray& display)
    : m_subscribers(std::make_shared<Subscribers>()) {
    m_xcb = xcb_connect(display.isEmpty() ? nullptr : display.constData(), &m_screen);
    m_alive = xcb_connection_has_error(m_xcb) == 0;
    if (!m_alive) return;
    m_root = rootOfScreen(xcb_get_setup(m_xcb), m_screen);
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_xcb), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        collect();
        dispatchAll();
    });
}

X11Connection::~X11Connection() {
    m_notifier.reset(); // before its descriptor is closed
    xcb_disconnect(m_xcb);
}

int X11Connection::failure() const { return xcb_connection_has_error(m_xcb); }

const xcb_query_extension_reply_t* X11Connection::extension(xcb_extension_t& id) {
    if (!m_alive) return nullptr;
    const auto* data = xcb_get_extension_data(m_xcb, &id); // blocks the first time
    drain();
    return data != nullptr && data->present != 0 ? data : nullptr;
}

void X11Connection::followRootProperties() {
    // Others select events on the root window too, and each request replaces the mask.
    const auto root =
        reply<xcb_get_window_attributes_reply>(xcb_get_window_attributes(m_xcb, m_root));
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | (root ? root->your_event_mask : 0U);
    xcb_change_window_attributes(m_xcb, m_root, XCB_CW_EVENT_MASK, &mask);
    flush();
}

int X11Connection::check(xcb_void_cookie_t cookie) {
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(m_xcb, cookie));
    drain();
    if (error) return error->error_code;
    return m_alive ? 0 : kBroken;
}

void X11Connection::drain() {
    const bool wasAlive = m_alive;
    collect();
    if ((m_events.empty() && m_alive == wasAlive) || m_dispatchPosted || m_dispatching) return;
    m_dispatchPosted = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_dispatchPosted = false;
            dispatchAll();
        },
        Qt::QueuedConnection);
}

void X11Connection::collect() {
    if (!m_alive) return;
    while (auto* event = xcb_poll_for_event(m_xcb))
        m_events.emplace_back(event);
    if (xcb_connection_has_error(m_xcb) == 0) return;
    m_alive = false;
    m_notifier->setEnabled(false); // otherwise it reports the closed socket repeatedly
}

void X11Connection::dispatchAll() {
    if (m_dispatching) return; // nested event loop in a handler; the loop below continues after it
    m_dispatching = true;
    while (!m_events.empty()) {
        const auto event = std::move(m_events.front());
        m_events.pop_front();
        dispatch(*event);
    }
    m_dispatching = false;
    if (m_alive || !m_notifier) return;
    m_notifier.release()->deleteLater(); // this may run inside its signal
    Q_EMIT broken();
}

void X11Connection::dispatch(const xcb_generic_event_t& event) {
    const auto type = static_cast<std::uint8_t>(event.response_type & ~kSentEvent);
    std::vector<std::uint64_t> ids;
    for (const auto& [id, subscriber] : *m_subscribers)
        if (subscriber.type == type) ids.push_back(id);
    for (const std::uint64_t id : ids) {
        const auto found = m_subscribers->find(id);
        if (found == m_subscribers->end()) continue; // ended by an earlier handler
        // A copy, since the handler may end its own subscription.
        const Handler call = found->second.handler;
        call(event);
    }
}

X11Connection::Subscription X11Connection::subscribe(std::uint8_t type, Handler handler) {
    const std::uint64_t id = ++m_nextId;
    m_subscribers->emplace(id, Subscriber{type, std::move(handler)});
    return {m_subscribers, id};
}

X11Connection::Subscription& X11Connection::Subscription::operator=(Subscription&& other) noexcept {
    if (this == &other) return *this;
    end();
    m_subscribers = std::exchange(other.m_subscribers, {});
    m_id = other.m_id;
    return *this;
}

void X11Connection::Subscription::end() {
    if (const auto subscribers = m_subscribers.lock()) subscribers->erase(m_id);
    m_subscribers.reset();
}

} // namespace vantle
