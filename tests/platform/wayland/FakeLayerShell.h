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

/// Shows nothing, configures nothing and asks for no frame but when a test says so.
class FakeLayerShell {
public:
    explicit FakeLayerShell(FakeCompositor& compositor) : m_compositor(compositor) {}
    /// Ends the client, whose surfaces these are.
    ~FakeLayerShell() { m_compositor.vanish(); }
    FakeLayerShell(const FakeLayerShell&) = delete;
    FakeLayerShell& operator=(const FakeLayerShell&) = delete;

    /// Each returns a number for `FakeCompositor::withdraw`.
    int offerSurfaces(); ///< and memory for their pictures, which is never taken back
    int offerShell(int version = 4);
    int offerViewporter();
    int offerLogicalOutputs();

    struct Screen {
        QPoint place;
        QSize mode;
        int scale = 1;
        int transform = 0;
        QRect logical = {}; ///< told by who offers logical outputs
    };
    int offerScreen(const Screen& screen);

    struct Surface;
    /// A buffer that the client has not been given back.
    struct Held;

    struct Surface {
        FakeLayerShell* shell = nullptr;
        wl_resource* surface = nullptr; ///< null once it is destroyed
        wl_resource* layer = nullptr;   ///< null once it is destroyed
        const Screen* screen = nullptr;
        std::uint32_t level = 0, anchor = 0, acked = 0;
        std::int32_t zone = 0;
        std::optional<std::uint32_t> keyboard;
        bool feelsNothing = false;
        int scale = 1;
        QSize destination;
        int commits = 0;
        std::vector<QImage> pictures; ///< all that were shown, copied
        wl_resource* attached = nullptr;
        std::vector<wl_resource*> frames; ///< callbacks that wait
        std::list<std::shared_ptr<Held>> held;
    };
    /// In the order in which they were made.
    [[nodiscard]] Surface& surface(std::size_t number = 0) { return *m_surfaces.at(number); }
    [[nodiscard]] std::size_t surfaces() const { return m_surfaces.size(); }

    void configure(Surface& surface, std::uint32_t width, std::uint32_t height);
    void close(Surface& surface);
    /// Asks for the next frame.
    void askForFrame(Surface& surface);
    /// Whether buffers are given back once another one is shown.
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
