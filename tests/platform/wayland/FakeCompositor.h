// A Wayland compositor in this process, with the protocols of the test.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <vector>

struct wl_client;
struct wl_display;
struct wl_global;
struct wl_interface;
struct wl_resource;

namespace vantle::tests {

/// Serves one client over a socket pair, on the test's thread: both sides run only in `settle`.
class FakeCompositor {
public:
    FakeCompositor();
    ~FakeCompositor();
    FakeCompositor(const FakeCompositor&) = delete;
    FakeCompositor& operator=(const FakeCompositor&) = delete;

    /// The client's end, to be given to its connection.
    [[nodiscard]] int takeSocket();

    /// Delivers requests and events until none is left.
    void settle();
    /// Closes the connection, like a crashed compositor.
    void vanish();
    /// Sends bytes that are no valid message.
    void talkNonsense();

    struct Idle {
        wl_resource* resource = nullptr;
        bool isKde = false;
        bool ofInput = false; ///< despite inhibitors
        std::uint32_t timeout = 0;
        bool idle = false;
    };

    /// The offered globals; each returns a number for `withdraw`.
    int offerSeat();
    int offerIdleNotifier(std::uint32_t version);
    int offerKdeIdle();
    int offerToplevels();
    int offerOutputPower();
    int offerOutput();
    void withdraw(int number);

    using Bind = void (*)(wl_client*, void* data, std::uint32_t version, std::uint32_t id);
    /// For what stands on this one. `data` is what `bind` gets.
    int offer(const wl_interface& interface, int version, Bind bind, void* data);
    [[nodiscard]] wl_display* display() const { return m_display; }

    /// The user: `touch` is input, `second` a second without any.
    void touch();
    void second();
    /// An idle inhibitor in older compositors: idle notifications stay idle, and none becomes idle.
    void inhibit(bool inhibits) { m_inhibits = inhibits; }
    /// An idle inhibitor in compositors where its start ends idleness.
    void inhibitAndResume();
    [[nodiscard]] std::size_t notifications() const { return m_idles.size(); }

    /// Windows, by numbers.
    int open(const QByteArray& appId);
    void say(int window, const QByteArray& appId);
    void activate(int window, bool isActivated);
    void done(int window);
    void close(int window);
    void finish();

    /// The power of the output with that number.
    void power(int output, bool on);
    void failPower(int output);

private:
    struct Bindings;
    friend struct Bindings;

    int offer(const wl_interface& interface, int version, Bind bind);
    void tellIdle(Idle& idle, bool isIdle);
    void tellPower(wl_global* output, wl_resource* power);

    wl_display* m_display = nullptr;
    wl_client* m_client = nullptr;
    int m_socket = -1, m_own = -1;
    std::deque<wl_global*> m_globals; ///< outputs point into it
    std::vector<std::unique_ptr<Idle>> m_idles;
    bool m_inhibits = false;
    wl_resource* m_toplevels = nullptr;
    std::vector<wl_resource*> m_windows;
    std::map<wl_global*, std::vector<wl_resource*>> m_powers;
    std::set<wl_global*> m_dark;
};

} // namespace vantle::tests
