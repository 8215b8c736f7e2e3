// A connection to the X server for what is not drawing: idle time, hot key, display power.
//
// It is the program's own, beside the one of the windows, so that event masks and grabs meet no
// others and that all of it runs without a window. Main thread throughout.
#pragma once

#include <QByteArray>
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
/// Memory that xcb handed over.
template <typename T>
using XcbOwned = std::unique_ptr<T, FreeXcb>;

/// The numbers of a property of numbers; none for one of another kind, or that is not there. They
/// live as long as the answer.
[[nodiscard]] std::span<const std::uint32_t> numbersOf(const xcb_get_property_reply_t* property);

/// No server, or one that goes away, is an answer: isAlive() is false then, and every request is
/// answered with nothing. Requests block for one round trip where they have an answer.
class X11Connection final : public QObject {
    Q_OBJECT

public:
    /// Connects to the server of that name, as in ":1"; empty stands for $DISPLAY.
    explicit X11Connection(const QByteArray& display = {});
    ~X11Connection() override;

    [[nodiscard]] bool isAlive() const { return m_alive; }
    /// xcb's number for why the connection does not work; 0 while it does.
    [[nodiscard]] int failure() const;

    /// For making requests. Never null; requests on a dead connection do nothing.
    [[nodiscard]] xcb_connection_t* xcb() const { return m_xcb; }
    /// The root window of the screen that the display name chose; 0 without a server.
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    /// The number of that screen.
    [[nodiscard]] int screen() const { return m_screen; }
    /// What the server says about an extension. Null when it lacks the extension.
    [[nodiscard]] const xcb_query_extension_reply_t* extension(xcb_extension_t& id);

    /// The atoms of the names, in their order and in one round trip; XCB_ATOM_NONE for those that
    /// the server does not answer.
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

    /// Has the server tell of changes of the root window's properties, as XCB_PROPERTY_NOTIFY,
    /// beside what is selected of that window already.
    void followRootProperties();

    /// Waits for the answer to a request: `reply<xcb_dpms_info_reply>(xcb_dpms_info(xcb()))`. Null
    /// when the server refused or is gone.
    template <auto Wait, typename Cookie>
    [[nodiscard]] auto reply(Cookie cookie) {
        auto* answer = Wait(m_xcb, cookie, nullptr);
        drain();
        return XcbOwned<std::remove_pointer_t<decltype(answer)>>(answer);
    }

    /// What `check` gives when the connection broke meanwhile. X error codes are positive.
    static constexpr int kBroken = -1;
    /// Waits until the server has taken a checked request: 0, or the code of the X error.
    [[nodiscard]] int check(xcb_void_cookie_t cookie);

    /// Sends what is buffered. Needed after requests without an answer.
    void flush() { xcb_flush(m_xcb); }

    /// Sees that events are dispatched that xcb read from the socket while it waited for
    /// something else; the socket does not become readable again for those. They are dispatched
    /// from the event loop, never within this call. To be called after every call of xcb's that
    /// waits; reply() and check() do it themselves.
    void drain();

    /// Ends with its destruction, which may happen inside the handler.
    class Subscription;
    using Handler = std::function<void(const xcb_generic_event_t&)>;
    /// Calls `handler` for each event of the type (without the bit that marks sent events).
    [[nodiscard]] Subscription subscribe(std::uint8_t type, Handler handler);

Q_SIGNALS:
    /// The server went away. Emitted once, from the event loop.
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
    std::deque<XcbOwned<xcb_generic_event_t>> m_events; ///< read and not yet dispatched
    std::shared_ptr<Subscribers> m_subscribers;         ///< held weakly by the subscriptions
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
