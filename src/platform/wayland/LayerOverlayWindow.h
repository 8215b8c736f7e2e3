// One layer surface on one output.
#pragma once

#include "base/Clock.h"
#include "base/Scheduler.h"
#include "platform/OverlayView.h"
#include "platform/wayland/WaylandOutputs.h"

#include <QSize>

#include <cstdint>
#include <memory>

struct wl_callback;
struct wl_compositor;
struct wl_shm;
struct wl_surface;
struct wp_viewport;
struct wp_viewporter;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace vantle {

class SharedPictures;

/// Shows a view from the first configure event on, one frame per frame callback, at most 60 a
/// second. Ends with its view, also when the compositor does not respond. Main thread.
class LayerOverlayWindow {
public:
    /// All of it must outlive the window.
    struct Environment {
        WaylandConnection& connection;
        const Clock& clock;
        Scheduler& scheduler;
        wl_compositor* compositor = nullptr;
        wl_shm* memory = nullptr;
        zwlr_layer_shell_v1* shell = nullptr;
        wp_viewporter* viewporter = nullptr; ///< null where not offered
    };

    LayerOverlayWindow(const Environment& environment, const WaylandOutputs::Shape& output,
                       std::unique_ptr<OverlayView> view);
    ~LayerOverlayWindow();
    LayerOverlayWindow(const LayerOverlayWindow&) = delete;
    LayerOverlayWindow& operator=(const LayerOverlayWindow&) = delete;

    [[nodiscard]] std::uint32_t output() const { return m_output.name; }

    /// Removes the surface and frees its memory. Repeatable.
    void end();

private:
    [[nodiscard]] Seconds elapsed() const;
    void ask();
    void configure(std::uint32_t serial, std::uint32_t width, std::uint32_t height);
    [[nodiscard]] QSize pixelsFor(QSize size) const;
    void drawWhenDue();
    void draw();
    void show(wl_surface* surface);

    const Environment m_env;
    const WaylandOutputs::Shape m_output;
    std::unique_ptr<OverlayView> m_view; ///< null after its end, to free memory
    wl_surface* m_surface = nullptr;     ///< null after its end
    zwlr_layer_surface_v1* m_layer = nullptr;
    wp_viewport* m_viewport = nullptr;
    wl_callback* m_frame = nullptr;             ///< pending frame callback
    QSize m_size;                               ///< as configured, in px of the output's frame
    std::unique_ptr<SharedPictures> m_pictures; ///< null until configured
    bool m_waitsForPicture = false;             ///< a frame is due, but both buffers are in use
    Seconds m_drawnAt{};                        ///< uptime of the last frame
    TimerHandle m_due; ///< delays the next frame on an output faster than the show
    TimerHandle m_end;
};

} // namespace vantle
