// One surface over one output.
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

/// Shows a view from the compositor's first word on, a frame each time that it asks for one, up to
/// 60 a second. It ends by itself with its view, also where the compositor has fallen silent. Main
/// thread.
class LayerOverlayWindow {
public:
    /// All of it must outlive this.
    struct Environment {
        WaylandConnection& connection;
        const Clock& clock;
        Scheduler& scheduler;
        wl_compositor* compositor = nullptr;
        wl_shm* memory = nullptr;
        zwlr_layer_shell_v1* shell = nullptr;
        wp_viewporter* viewporter = nullptr; ///< null where it is not offered
    };

    LayerOverlayWindow(const Environment& environment, const WaylandOutputs::Shape& output,
                       std::unique_ptr<OverlayView> view);
    ~LayerOverlayWindow();
    LayerOverlayWindow(const LayerOverlayWindow&) = delete;
    LayerOverlayWindow& operator=(const LayerOverlayWindow&) = delete;

    [[nodiscard]] std::uint32_t output() const { return m_output.name; }

    /// Takes it away, and frees its memory. Once is enough.
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
    std::unique_ptr<OverlayView> m_view; ///< null from its end on, so that its memory is free
    wl_surface* m_surface = nullptr;     ///< null from its end on
    zwlr_layer_surface_v1* m_layer = nullptr;
    wp_viewport* m_viewport = nullptr;
    wl_callback* m_frame = nullptr; ///< the compositor has not asked for the next frame yet
    QSize m_size;                   ///< as configured, in px of the output's frame
    std::unique_ptr<SharedPictures> m_pictures; ///< null until configured
    bool m_waitsForPicture = false;             ///< it has asked, but has not given one back
    Seconds m_drawnAt{};                        ///< uptime of the last frame
    TimerHandle m_due; ///< of the next frame where the output is faster than the show
    TimerHandle m_end;
};

} // namespace vantle
