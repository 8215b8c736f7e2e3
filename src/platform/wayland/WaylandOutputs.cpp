#include "platform/wayland/WaylandOutputs.h"

#include <cstdint>
#include <utility>
#include <wayland-client.h>
#include <xdg-output-unstable-v1-client-protocol.h>

namespace vantle {

namespace {

/// Whether the transform includes a quarter turn, mirrored or not.
bool isTurned(std::int32_t transform) { return transform % 2 != 0; }

} // namespace

class WaylandOutputs::Output {
public:
    Output(std::uint32_t name, wl_output* output) : m_name(name), m_output(output) {
        static constexpr wl_output_listener kListener{
            .geometry =
                [](void* data, wl_output*, std::int32_t x, std::int32_t y, std::int32_t,
                   std::int32_t, std::int32_t, const char*, const char*, std::int32_t transform) {
                    of(data).m_place = {x, y};
                    of(data).m_isTurned = isTurned(transform);
                },
            .mode =
                [](void* data, wl_output*, std::uint32_t flags, std::int32_t width,
                   std::int32_t height, std::int32_t) {
                    if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) of(data).m_mode = {width, height};
                },
            .done = [](void*, wl_output*) {},
            .scale =
                [](void* data, wl_output*, std::int32_t scale) {
                    if (scale > 0) of(data).m_scale = scale;
                },
            .name = [](void*, wl_output*, const char*) {},
            .description = [](void*, wl_output*, const char*) {}};
        wl_output_add_listener(m_output, &kListener, this);
    }
    ~Output() {
        if (m_logical != nullptr) zxdg_output_v1_destroy(m_logical);
        wl_output_destroy(m_output);
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void askForLogicalFrame(zxdg_output_manager_v1* manager) {
        if (m_logical != nullptr) return;
        static constexpr zxdg_output_v1_listener kListener{
            .logical_position =
                [](void* data, zxdg_output_v1*, std::int32_t x, std::int32_t y) {
                    of(data).m_logicalFrame.moveTopLeft({x, y});
                },
            .logical_size =
                [](void* data, zxdg_output_v1*, std::int32_t width, std::int32_t height) {
                    of(data).m_logicalFrame.setSize({width, height});
                },
            .done = [](void*, zxdg_output_v1*) {}};
        m_logical = zxdg_output_manager_v1_get_xdg_output(manager, m_output);
        zxdg_output_v1_add_listener(m_logical, &kListener, this);
    }

    [[nodiscard]] Shape shape() const {
        const QSize pixels = m_isTurned ? m_mode.transposed() : m_mode;
        // Exact for whole scales, which are the only ones without xdg-output.
        const QRect frame =
            m_logicalFrame.isEmpty() ? QRect(m_place, pixels / m_scale) : m_logicalFrame;
        return {
            .name = m_name, .output = m_output, .frame = frame, .pixels = pixels, .scale = m_scale};
    }

private:
    static Output& of(void* data) { return *static_cast<Output*>(data); }

    const std::uint32_t m_name;
    wl_output* const m_output;
    zxdg_output_v1* m_logical = nullptr;
    QPoint m_place;
    QSize m_mode;
    bool m_isTurned = false;
    int m_scale = 1;
    QRect m_logicalFrame;
};

WaylandOutputs::WaylandOutputs(WaylandConnection& connection) : m_connection(connection) {
    connect(&m_connection, &WaylandConnection::ready, this, &WaylandOutputs::choose);
    connect(&m_connection, &WaylandConnection::added, this, &WaylandOutputs::choose);
    connect(&m_connection, &WaylandConnection::removed, this, &WaylandOutputs::forget);
    connect(&m_connection, &WaylandConnection::broken, this, &WaylandOutputs::lose);
    choose();
}

WaylandOutputs::~WaylandOutputs() { release(); }

std::vector<WaylandOutputs::Shape> WaylandOutputs::all() const {
    std::vector<Shape> shapes;
    shapes.reserve(m_outputs.size());
    for (const auto& [global, output] : m_outputs) {
        const Shape shape = output->shape();
        if (!shape.frame.isEmpty() && !shape.pixels.isEmpty()) shapes.push_back(shape);
    }
    return shapes;
}

void WaylandOutputs::choose() {
    if (!m_connection.isReady()) return;
    if (m_manager == nullptr) {
        const auto& interface = zxdg_output_manager_v1_interface;
        if (const auto global = m_connection.global(interface.name))
            m_manager = m_connection.bind<zxdg_output_manager_v1>(*global, interface, 1);
    }
    for (const WaylandGlobal& global : m_connection.globals())
        if (global.interface == wl_output_interface.name && !m_outputs.contains(global.name))
            follow(global);
    m_connection.flush();
}

void WaylandOutputs::follow(const WaylandGlobal& global) {
    // Version 2 adds the scale.
    auto* const proxy = m_connection.bind<wl_output>(global, wl_output_interface, 2);
    auto output = std::make_unique<Output>(global.name, proxy);
    if (m_manager != nullptr) output->askForLogicalFrame(m_manager);
    m_outputs.emplace(global.name, std::move(output));
}

void WaylandOutputs::forget(std::uint32_t global) {
    if (!m_outputs.contains(global)) return;
    Q_EMIT removed(global);
    m_outputs.erase(global);
}

void WaylandOutputs::lose() {
    for (const auto& [global, output] : m_outputs)
        Q_EMIT removed(global);
    release();
}

void WaylandOutputs::release() {
    m_outputs.clear();
    if (m_manager != nullptr) zxdg_output_manager_v1_destroy(std::exchange(m_manager, nullptr));
}

} // namespace vantle
