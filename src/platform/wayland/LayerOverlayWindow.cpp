#include "platform/wayland/LayerOverlayWindow.h"

#include "platform/wayland/SharedPictures.h"

#include <utility>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace vantle {

namespace {

constexpr Seconds kFrame{1.0 / 60};
/// Allows for outputs slightly faster than 60 Hz, which would otherwise lose every second frame.
constexpr Seconds kShortestFrame{1.0 / 75};

constexpr std::uint32_t kAllEdges =
    ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
    ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
/// Covers bars without moving them.
constexpr std::int32_t kOverBars = -1;
constexpr std::uint32_t kNoKeyboard = 0;

constexpr std::uint32_t kLongestSide = 32767;

} // namespace

LayerOverlayWindow::LayerOverlayWindow(const Environment& environment,
                                       const WaylandOutputs::Shape& output,
                                       std::unique_ptr<OverlayView> view)
    : m_env(environment)
    , m_output(output)
    , m_view(std::move(view)) {
    m_end = m_env.scheduler.scheduleOnce(m_view->endTime() - elapsed(), [this] { end(); });
    ask();
}

LayerOverlayWindow::~LayerOverlayWindow() { end(); }

Seconds LayerOverlayWindow::elapsed() const { return m_env.clock.now() - m_view->start(); }

void LayerOverlayWindow::ask() {
    m_surface = wl_compositor_create_surface(m_env.compositor);
    m_layer =
        zwlr_layer_shell_v1_get_layer_surface(m_env.shell, m_surface, m_output.output,
                                              ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "vantle-ceremony");
    static constexpr zwlr_layer_surface_v1_listener kListener{
        .configure =
            [](void* data, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t width,
               std::uint32_t height) {
                static_cast<LayerOverlayWindow*>(data)->configure(serial, width, height);
            },
        .closed = [](void* data,
                     zwlr_layer_surface_v1*) { static_cast<LayerOverlayWindow*>(data)->end(); }};
    zwlr_layer_surface_v1_add_listener(m_layer, &kListener, this);
    zwlr_layer_surface_v1_set_anchor(m_layer, kAllEdges);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layer, kOverBars);
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_layer, kNoKeyboard);
    wl_region* const nothing = wl_compositor_create_region(m_env.compositor);
    wl_surface_set_input_region(m_surface, nothing);
    wl_region_destroy(nothing);
    if (m_env.viewporter != nullptr)
        m_viewport = wp_viewporter_get_viewport(m_env.viewporter, m_surface);
    // Without a buffer, which is allowed only once configured.
    wl_surface_commit(m_surface);
    m_env.connection.flush();
}

void LayerOverlayWindow::end() {
    if (m_surface == nullptr) return;
    m_end.reset();
    m_due.reset();
    if (m_frame != nullptr) wl_callback_destroy(std::exchange(m_frame, nullptr));
    if (m_viewport != nullptr) wp_viewport_destroy(m_viewport);
    zwlr_layer_surface_v1_destroy(m_layer);
    wl_surface_destroy(std::exchange(m_surface, nullptr));
    m_pictures.reset();
    m_view.reset();
    m_env.connection.flush();
}

void LayerOverlayWindow::configure(std::uint32_t serial, std::uint32_t width,
                                   std::uint32_t height) {
    if (m_surface == nullptr) return;
    zwlr_layer_surface_v1_ack_configure(m_layer, serial);
    if (width == 0 || height == 0 || width > kLongestSide || height > kLongestSide) return end();
    const QSize size(static_cast<int>(width), static_cast<int>(height));
    if (size == m_size) return m_env.connection.flush();
    m_size = size;
    m_waitsForPicture = false;
    m_pictures = std::make_unique<SharedPictures>(m_env.memory, pixelsFor(size), [this] {
        if (std::exchange(m_waitsForPicture, false)) drawWhenDue();
    });
    if (m_pictures->isEmpty()) return end();
    // A pending frame callback belongs to the old size.
    if (m_frame != nullptr) wl_callback_destroy(std::exchange(m_frame, nullptr));
    m_due.reset();
    draw();
}

/// The output's pixels for the surface, so that nothing is scaled after painting.
QSize LayerOverlayWindow::pixelsFor(QSize size) const {
    if (m_viewport == nullptr) return size * m_output.scale;
    const double ratio = static_cast<double>(m_output.pixels.width()) / m_output.frame.width();
    return (QSizeF(size) * ratio).toSize();
}

void LayerOverlayWindow::drawWhenDue() {
    const Seconds since = m_env.clock.uptime().awake - m_drawnAt;
    if (since >= kShortestFrame) return draw();
    m_due = m_env.scheduler.scheduleOnce(kFrame - since, [this] { draw(); });
}

void LayerOverlayWindow::draw() {
    if (m_surface == nullptr) return;
    if (elapsed() >= m_view->endTime()) return end();
    SharedPictures::Picture* const picture = m_pictures->free();
    m_waitsForPicture = picture == nullptr;
    if (m_waitsForPicture) return;
    m_drawnAt = m_env.clock.uptime().awake;
    QImage image = m_pictures->image(*picture);
    image.setDevicePixelRatio(static_cast<double>(image.width()) / m_size.width());
    m_view->paint(image, elapsed());
    picture->isShown = true;
    wl_surface_attach(m_surface, picture->buffer, 0, 0);
    show(m_surface);
}

void LayerOverlayWindow::show(wl_surface* surface) {
    if (m_viewport != nullptr)
        wp_viewport_set_destination(m_viewport, m_size.width(), m_size.height());
    else
        wl_surface_set_buffer_scale(surface, m_output.scale);
    wl_surface_damage(surface, 0, 0, m_size.width(), m_size.height());
    static constexpr wl_callback_listener kListener{
        .done = [](void* data, wl_callback* callback, std::uint32_t) {
            auto& self = *static_cast<LayerOverlayWindow*>(data);
            wl_callback_destroy(callback);
            self.m_frame = nullptr;
            self.drawWhenDue();
        }};
    m_frame = wl_surface_frame(surface);
    wl_callback_add_listener(m_frame, &kListener, this);
    wl_surface_commit(surface);
    m_env.connection.flush();
}

} // namespace vantle
