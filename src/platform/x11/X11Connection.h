// The program's own connection to the X server.
//
// For idle time, hot key, display power and so on. Separate from the toolkit's, so that event masks
// and grabs do not collide and no window is needed. Main thread.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>

#include <xcb/xcb.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <type_traits>

class QSocketNotifier;

namespace vantle {

struct FreeXcb {
    void operator()(void* memory) const { std::free(memory); }
};
/// Memory allocated by xcb.
template <typename T>
using XcbOwned = std::unique_ptr<T, FreeXcb>;

/// Return the values of a property in 32-bit units and in bytes, valid as long as the reply; empty
/// for another format or a missing property. Any client may set any value on any window.
[[nodiscard]] std::span<const std::uint32_t> numbersOf(const xcb_get_property_reply_t* property);
[[nodiscard]] QByteArrayView bytesOf(const xcb_get_property_reply_t* property);

/// A missing or lost server is no failure: isAlive() is false then, and replies are empty. Requests
/// with a reply block for one round trip.
class X11Connection final : public QObject {
    Q_OBJECT

public:
    /// Connects to the server of that name, such as ":1"; empty means $DISPLAY.
    explicit X11Connection(const QByteArray& display = {});
    ~X11Connection() override;

    [[nodiscard]] bool isAlive() const { return m_alive; }
    /// Returns xcb's connection error; 0 while connected.
    [[nodiscard]] int failure() const;

    /// For requests. Never null; requests on a lost connection have no effect.
    [[nodiscard]] xcb_connection_t* xcb() const { return m_xcb; }
    /// The root window of the display name's screen; 0 without a server.
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    /// The number of that screen.
    [[nodiscard]] int screen() const { return m_screen; }
    /// Returns the extension's data; null when the server lacks it.
    [[nodiscard]] const xcb_query_extension_reply_t* extension(xcb_extension_t& id);

    /// Returns the atoms of the names in one round trip; XCB_ATOM_NONE where the server does not
    /// reply.
    template <std::size_t Count>
    [[nodiscard]] std::array<xcb_atom_t, Count> atoms(const std::array<const char*, Count>& names) {
        std::array<xcb_intern_atom_cookie_t, Count> cookies{};
        for (std::size_t i = 0; i < Count; ++i)
            cookies[i] = xcb_intern_atom(
                m_xcb, 0, static_cast<std::uint16_t>(std::strlen(names[i])), names[i]);
        std::array<xcb_atom_t, Count> atoms{};
        for (std::size_t i = 0; i < Count; ++i)
            if (const auto answer = reply<xcb_intern_atom_reply>(cookies[i]))
                atoms[i] = answer->atom;
        return atoms;
    }

    /// Selects property changes of the root window (XCB_PROPERTY_NOTIFY), in addition to what is
    /// selected already.
    void followRootProperties();

    /// Waits for the reply to a request: `reply<xcb_dpms_info_reply>(xcb_dpms_info(xcb()))`. Null
    /// on an error or a lost connection.
    template <auto Wait, typename Cookie>
    [[nodiscard]] auto reply(Cookie cookie) {
        auto* answer = Wait(m_xcb, cookie, nullptr);
        drain();
        return XcbOwned<std::remove_pointer_t<decltype(answer)>>(answer);
    }

    /// Result of `check` on a lost connection. X error codes are positive.
    static constexpr int kBroken = -1;
    /// Waits for a checked request. Returns 0 or the X error code.
    [[nodiscard]] int check(xcb_void_cookie_t cookie);

    /// Sends buffered requests. Needed after requests without a reply.
    void flush() { xcb_flush(m_xcb); }

    /// Schedules the dispatch of events that xcb read while it waited for a reply; the socket does
    /// not become readable again for them. Dispatches from the event loop, never inside this call.
    /// Call it after every blocking xcb call; reply() and check() do.
    void drain();

    /// Ends when destroyed, also inside the handler.
    class Subscription;
    using Handler = std::function<void(const xcb_generic_event_t&)>;
    /// Calls `handler` for each event of the type (without the bit of sent events).
    [[nodiscard]] Subscription subscribe(std::uint8_t type, Handler handler);

Q_SIGNALS:
    /// The server was lost. Emitted once, from the event loop.
    void broken();

private:
    struct Subscriber {
        std::uint8_t type = 0;
        Handler handler;
    };
    using Subscribers = std::map<std::uint64_t, Subscriber>;

    void collect();
    void dispatchAll();
    void dispatch(const xcb_generic_event_t& event);

    xcb_connection_t* m_xcb = nullptr;
    xcb_window_t m_root = 0;
    int m_screen = 0;
    bool m_alive = false;
    bool m_dispatchPosted = false;
    bool m_dispatching = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::deque<XcbOwned<xcb_generic_event_t>> m_events; ///< read but not yet dispatched
    std::shared_ptr<Subscribers> m_subscribers;         ///< subscriptions hold it weakly
    std::uint64_t m_nextId = 0;
};

class X11Connection::Subscription {
public:
    Subscription() = default;
    ~Subscription() { end(); }
    Subscription(Subscription&& other) noexcept { *this = std::move(other); }
    Subscription& operator=(Subscription&& other) noexcept;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

private:
    friend class X11Connection;
    Subscription(std::weak_ptr<Subscribers> subscribers, std::uint64_t id)
        : m_subscribers(std::move(subscribers))
        , m_id(id) {}
    void end();

    std::weak_ptr<Subscribers> m_subscribers;
    std::uint64_t m_id = 0;
};

} // namespace vantle
