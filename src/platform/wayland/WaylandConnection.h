// The program's own connection to the Wayland compositor, beside its X11 windows.
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

/// Something that the compositor offers.
struct WaylandGlobal {
    std::uint32_t name = 0; ///< number by which it is bound
    QByteArray interface;
    std::uint32_t version = 0;
};

/// Reads from the socket as the event loop finds it readable and never waits: what is offered is
/// known some milliseconds after the start. Without a compositor there is nothing, and no failure.
/// Main thread. Whatever is bound must be destroyed before this.
class WaylandConnection final : public QObject {
    Q_OBJECT

public:
    /// To the compositor that the environment names.
    WaylandConnection();
    /// Over a socket that is connected already, and belongs to this from now on.
    explicit WaylandConnection(int socket);
    ~WaylandConnection() override;

    /// False without a compositor, and once it is gone.
    [[nodiscard]] bool isAlive() const;

    /// Whether all that it offers at first is known.
    [[nodiscard]] bool isReady() const { return m_isReady && isAlive(); }

    [[nodiscard]] const std::vector<WaylandGlobal>& globals() const { return m_globals; }
    /// The first of that interface.
    [[nodiscard]] std::optional<WaylandGlobal> global(const char* interface) const;

    /// The proxy of a global, in the version that both sides know. To be called while alive; the
    /// caller destroys it.
    template <typename Proxy>
    [[nodiscard]] Proxy* bind(const WaylandGlobal& global, const wl_interface& interface,
                              std::uint32_t newest) {
        return static_cast<Proxy*>(bindProxy(global, interface, newest));
    }

    /// Sends what was asked for since. What the socket does not take now follows later.
    void flush();

Q_SIGNALS:
    void ready();
    void added(const vantle::WaylandGlobal& global); ///< from `ready` on
    void removed(std::uint32_t name);
    /// The compositor went away, or found a mistake in a request. Once.
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
    std::unique_ptr<QSocketNotifier> m_writable; ///< on while the socket is full
    bool m_isReady = false;
    bool m_isBroken = false;
};

} // namespace vantle
