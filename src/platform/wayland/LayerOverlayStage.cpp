#include "platform/wayland/LayerOverlayStage.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace vantle {

namespace {

constexpr std::uint32_t kNewestSurfaces = 4;
constexpr std::uint32_t kNewestShell = 4;

/// Older versions have no destroy request.
void destroy(zwlr_layer_shell_v1* shell) {
    if (zwlr_layer_shell_v1_get_version(shell) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(shell);
    else
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(shell));
}
void destroy(wl_compositor* compositor) { wl_compositor_destroy(compositor); }
void destroy(wl_shm* memory) { wl_shm_destroy(memory); }
void destroy(wp_viewporter* viewporter) { wp_viewporter_destroy(viewporter); }

template <typename Bound>
void release(Bound& bound) {
    if (auto* const proxy = std::exchange(bound, {}).proxy) destroy(proxy);
}

} // namespace

class LayerOverlayStage::Place final : public OverlayWindow {
public:
    Place(LayerOverlayStage& stage, std::list<LayerOverlayWindow>::iterator window)
        : m_stage(stage)
        , m_window(window) {}
    ~Place() override { m_stage.m_windows.erase(m_window); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

private:
    LayerOverlayStage& m_stage;
    const std::list<LayerOverlayWindow>::iterator m_window;
};

LayerOverlayStage::LayerOverlayStage(WaylandConnection& connection, const Clock& clock,
                                     Scheduler& scheduler)
    : m_connection(connection)
    , m_clock(clock)
    , m_scheduler(scheduler)
    , m_outputs(connection) {
    connect(&m_connection, &WaylandConnection::ready, this, &LayerOverlayStage::choose);
    connect(&m_connection, &WaylandConnection::added, this, &LayerOverlayStage::choose);
    connect(&m_connection, &WaylandConnection::removed, this, &LayerOverlayStage::forget);
    connect(&m_connection, &WaylandConnection::broken, this, &LayerOverlayStage::lose);
    connect(&m_outputs, &WaylandOutputs::removed, this, [this](std::uint32_t output) {
        for (LayerOverlayWindow& window : m_windows)
            if (window.output() == output) window.end();
    });
    choose();
}

LayerOverlayStage::~LayerOverlayStage() { lose(); }

bool LayerOverlayStage::isAvailable() const {
    return m_connection.isReady() && m_compositor.proxy != nullptr && m_memory.proxy != nullptr &&
           m_shell.proxy != nullptr;
}

std::vector<QRect> LayerOverlayStage::frames() const {
    std::vector<QRect> frames;
    for (const WaylandOutputs::Shape& shape : m_outputs.all())
        if (std::ranges::find(frames, shape.frame) == frames.end()) frames.push_back(shape.frame);
    return frames;
}

std::unique_ptr<OverlayWindow> LayerOverlayStage::putUp(const QRect& frame,
                                                        std::unique_ptr<OverlayView> view) {
    const auto outputs = m_outputs.all();
    const auto output = std::ranges::find(outputs, frame, &WaylandOutputs::Shape::frame);
    if (!isAvailable() || output == outputs.end()) return std::make_unique<OverlayWindow>();
    m_windows.emplace_back(LayerOverlayWindow::Environment{.connection = m_connection,
                                                           .clock = m_clock,
                                                           .scheduler = m_scheduler,
                                                           .compositor = m_compositor.proxy,
                                                           .memory = m_memory.proxy,
                                                           .shell = m_shell.proxy,
                                                           .viewporter = m_viewporter.proxy},
                           *output, std::move(view));
    return std::make_unique<Place>(*this, std::prev(m_windows.end()));
}

template <typename Proxy>
void LayerOverlayStage::bindOnce(Bound<Proxy>& bound, const wl_interface& interface,
                                 std::uint32_t newest) {
    if (bound.proxy != nullptr) return;
    const auto global = m_connection.global(interface.name);
    if (!global) return;
    bound = {m_connection.bind<Proxy>(*global, interface, newest), global->name};
}

void LayerOverlayStage::choose() {
    if (!m_connection.isReady()) return;
    bindOnce(m_compositor, wl_compositor_interface, kNewestSurfaces);
    bindOnce(m_memory, wl_shm_interface, 1);
    bindOnce(m_shell, zwlr_layer_shell_v1_interface, kNewestShell);
    bindOnce(m_viewporter, wp_viewporter_interface, 1);
    m_connection.flush();
}

void LayerOverlayStage::forget(std::uint32_t global) {
    if (global == m_compositor.name || global == m_memory.name || global == m_shell.name ||
        global == m_viewporter.name) {
        lose();
        choose();
    }
}

void LayerOverlayStage::lose() {
    for (LayerOverlayWindow& window : m_windows)
        window.end();
    release(m_viewporter);
    release(m_shell);
    release(m_memory);
    release(m_compositor);
}

} // namespace vantle
