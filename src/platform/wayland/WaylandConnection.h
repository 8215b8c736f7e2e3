// The program's own connection to the Wayland compositor.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

struct wl_display;
struct wl_interface;
struct wl_registry;

namespace vantle {

/// An interface that the compositor offers.
struct WaylandGlobal {
    std::uint32_t name = 0; ///< the number for binding
    QByteArray interface;
    std::uint32_t version = 0;
};

/// Reads from the event loop and never blocks: the globals are known some milliseconds after the
/// start. Without a compositor it is not alive, which is no failure. Bound objects must be
/// destroyed before it. Main thread.
class WaylandConnection final : public QObject {
    Q_OBJECT

public:
    /// Connects to the compositor that the environment names.
    WaylandConnection();
    /// Uses a connected socket and takes ownership.
    explicit WaylandConnection(int socket);
    ~WaylandConnection() override;

    /// False without a compositor and after it is lost.
    [[nodiscard]] bool isAlive() const;

    /// Whether the initial globals are known.
    [[nodiscard]] bool isReady() const { return m_isReady && isAlive(); }

    [[nodiscard]] const std::vector<WaylandGlobal>& globals() const { return m_globals; }
    /// Returns the first global of that interface; empty when there is none.
    [[nodiscard]] std::optional<WaylandGlobal> global(const char* interface) const;

    /// Binds a global in the highest common version. Requires isAlive(); the caller destroys the
    /// proxy.
    template <typename Proxy>
    [[nodiscard]] Proxy* bind(const WaylandGlobal& global, const wl_interface& interface,
                              std::uint32_t newest) {
        return static_cast<Proxy*>(bindProxy(global, interface, newest));
    }

    /// Sends queued requests; what the socket does not take follows later.
    void flush();

Q_SIGNALS:
    void ready();
    void added(const vantle::WaylandGlobal& global); ///< after `ready` only
    void removed(std::uint32_t name);
    /// The connection was lost, or ended by a protocol error. Emitted once.
    void broken();

private:
    struct Disconnect {
        void operator()(wl_display* display) const;
    };

    void begin();
    void read();
    void breakOff();
    [[nodiscard]] void* bindProxy(const WaylandGlobal& global, const wl_interface& interface,
                                  std::uint32_t newest);

    std::unique_ptr<wl_display, Disconnect> m_display;
    wl_registry* m_registry = nullptr;
    std::vector<WaylandGlobal> m_globals;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable; ///< enabled while the socket is full
    bool m_isReady = false;
    bool m_isBroken = false;
};

} // namespace vantle
