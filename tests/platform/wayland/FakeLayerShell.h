// The surfaces and outputs of the compositor in this process.
#pragma once

#include "platform/wayland/FakeCompositor.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <deque>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace vantle::tests {

/// Configures and requests frames only in the test's calls.
class FakeLayerShell {
public:
    explicit FakeLayerShell(FakeCompositor& compositor) : m_compositor(compositor) {}
    /// Disconnects the client that owns the surfaces.
    ~FakeLayerShell() { m_compositor.vanish(); }
    FakeLayerShell(const FakeLayerShell&) = delete;
    FakeLayerShell& operator=(const FakeLayerShell&) = delete;

    /// Each returns a number for `FakeCompositor::withdraw`.
    int offerSurfaces(); ///< with shared memory, which is never withdrawn
    int offerShell(int version = 4);
    int offerViewporter();
    int offerLogicalOutputs();

    struct Screen {
        QPoint place;
        QSize mode;
        int scale = 1;
        int transform = 0;
        QRect logical = {}; ///< sent by xdg-output
    };
    int offerScreen(const Screen& screen);

    struct Surface;
    /// A buffer not yet released.
    struct Held;

    struct Surface {
        FakeLayerShell* shell = nullptr;
        wl_resource* surface = nullptr; ///< null once destroyed
        wl_resource* layer = nullptr;   ///< null once destroyed
        const Screen* screen = nullptr;
        std::uint32_t level = 0, anchor = 0, acked = 0;
        std::int32_t zone = 0;
        std::optional<std::uint32_t> keyboard;
        bool feelsNothing = false;
        int scale = 1;
        QSize destination;
        int commits = 0;
        std::vector<QImage> pictures; ///< copies of all frames shown
        wl_resource* attached = nullptr;
        std::vector<wl_resource*> frames; ///< pending frame callbacks
        std::list<std::shared_ptr<Held>> held;
    };
    /// In order of creation.
    [[nodiscard]] Surface& surface(std::size_t number = 0) { return *m_surfaces.at(number); }
    [[nodiscard]] std::size_t surfaces() const { return m_surfaces.size(); }

    void configure(Surface& surface, std::uint32_t width, std::uint32_t height);
    void close(Surface& surface);
    /// Requests the next frame.
    void askForFrame(Surface& surface);
    /// Whether a buffer is released once another one is shown.
    void setReleases(bool releases) { m_releases = releases; }
    void release(Surface& surface);

    [[nodiscard]] static std::uint32_t lastSerial() { return s_serial; }

private:
    struct Bindings;
    friend struct Bindings;

    void commit(Surface& surface);

    FakeCompositor& m_compositor;
    std::deque<std::unique_ptr<Surface>> m_surfaces;
    std::deque<Screen> m_screens; ///< outputs point into it
    bool m_releases = true;
    static std::uint32_t s_serial;
};

} // namespace vantle::tests
