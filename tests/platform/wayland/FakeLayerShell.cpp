#include "platform/wayland/FakeLayerShell.h"

#include <algorithm>
#include <utility>
#include <viewporter-server-protocol.h>
#include <wayland-server.h>
#include <wlr-layer-shell-unstable-v1-server-protocol.h>
#include <xdg-output-unstable-v1-server-protocol.h>

namespace vantle::tests {

std::uint32_t FakeLayerShell::s_serial = 0;

/// Leaves the list of its surface when the client destroys the buffer.
struct FakeLayerShell::Held {
    wl_listener gone{}; // the first member, by which the others are found
    wl_resource* buffer = nullptr;
    Surface* owner = nullptr;

    Held(wl_resource* held, Surface& surface) : buffer(held), owner(&surface) {
        gone.notify = [](wl_listener* listener, void*) {
            auto* const self = reinterpret_cast<Held*>(listener);
            self->owner->held.remove_if([self](const auto& one) { return one.get() == self; });
        };
        wl_resource_add_destroy_listener(buffer, &gone);
    }
    ~Held() { wl_list_remove(&gone.link); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
};

namespace {

void destroySelf(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

template <typename T>
T& stateOf(wl_resource* resource) {
    return *static_cast<T*>(wl_resource_get_user_data(resource));
}

wl_resource* make(wl_client* client, const wl_interface& interface, std::uint32_t version,
                  std::uint32_t id, const void* requests, void* data,
                  wl_resource_destroy_func_t gone = nullptr) {
    wl_resource* const resource =
        wl_resource_create(client, &interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, requests, data, gone);
    return resource;
}

} // namespace

struct FakeLayerShell::Bindings {
    // A region knows how many rectangles it has.
    static void addRegion(wl_client* client, wl_resource*, std::uint32_t id) {
        static constexpr struct wl_region_interface kRegion {
            .destroy = destroySelf,
            .add = [](wl_client*, wl_resource* region, std::int32_t, std::int32_t, std::int32_t,
                      std::int32_t) { ++stateOf<int>(region); },
            .subtract = [](wl_client*, wl_resource*, std::int32_t, std::int32_t, std::int32_t,
                           std::int32_t) {}
        };
        make(client, wl_region_interface, 1, id, &kRegion, new int(0),
             [](wl_resource* region) { delete &stateOf<int>(region); });
    }

    static void addSurface(wl_client* client, wl_resource* compositor, std::uint32_t id) {
        static constexpr struct wl_surface_interface kSurface {
            .destroy = destroySelf,
            .attach = [](wl_client*, wl_resource* surface, wl_resource* buffer, std::int32_t,
                         std::int32_t) { stateOf<Surface>(surface).attached = buffer; },
            .damage = [](wl_client*, wl_resource*, std::int32_t, std::int32_t, std::int32_t,
                         std::int32_t) {},
            .frame =
                [](wl_client* who, wl_resource* surface, std::uint32_t callback) {
                    stateOf<Surface>(surface).frames.push_back(
                        make(who, wl_callback_interface, 1, callback, nullptr, nullptr));
                },
            .set_opaque_region = [](wl_client*, wl_resource*, wl_resource*) {},
            .set_input_region =
                [](wl_client*, wl_resource* surface, wl_resource* region) {
                    stateOf<Surface>(surface).feelsNothing =
                        region != nullptr && stateOf<int>(region) == 0;
                },
            .commit =
                [](wl_client*, wl_resource* surface) {
                    auto& self = stateOf<Surface>(surface);
                    self.shell->commit(self);
                },
            .set_buffer_transform = [](wl_client*, wl_resource*, std::int32_t) {},
            .set_buffer_scale = [](wl_client*, wl_resource* surface,
                                   std::int32_t scale) { stateOf<Surface>(surface).scale = scale; },
            .damage_buffer = [](wl_client*, wl_resource*, std::int32_t, std::int32_t, std::int32_t,
                                std::int32_t) {},
            .offset = [](wl_client*, wl_resource*, std::int32_t, std::int32_t) {}
        };
        auto& self = stateOf<FakeLayerShell>(compositor);
        self.m_surfaces.push_back(std::make_unique<Surface>());
        Surface& surface = *self.m_surfaces.back();
        surface.shell = &self;
        surface.surface =
            make(client, wl_surface_interface,
                 static_cast<std::uint32_t>(wl_resource_get_version(compositor)), id, &kSurface,
                 &surface, [](wl_resource* gone) { stateOf<Surface>(gone).surface = nullptr; });
    }

    static void bindCompositor(wl_client* client, void* data, std::uint32_t version,
                               std::uint32_t id) {
        static constexpr struct wl_compositor_interface kCompositor {
            .create_surface = addSurface, .create_region = addRegion
        };
        make(client, wl_compositor_interface, version, id, &kCompositor, data);
    }

    static void addLayer(wl_client* client, wl_resource* shell, std::uint32_t id,
                         wl_resource* surface, wl_resource* output, std::uint32_t level,
                         const char*) {
        static constexpr struct zwlr_layer_surface_v1_interface kLayer {
            .set_size = [](wl_client*, wl_resource*, std::uint32_t, std::uint32_t) {},
            .set_anchor = [](wl_client*, wl_resource* layer,
                             std::uint32_t anchor) { stateOf<Surface>(layer).anchor = anchor; },
            .set_exclusive_zone = [](wl_client*, wl_resource* layer,
                                     std::int32_t zone) { stateOf<Surface>(layer).zone = zone; },
            .set_margin = [](wl_client*, wl_resource*, std::int32_t, std::int32_t, std::int32_t,
                             std::int32_t) {},
            .set_keyboard_interactivity =
                [](wl_client*, wl_resource* layer, std::uint32_t mode) {
                    stateOf<Surface>(layer).keyboard = mode;
                },
            .get_popup = [](wl_client*, wl_resource*, std::uint32_t) {},
            .ack_configure = [](wl_client*, wl_resource* layer,
                                std::uint32_t serial) { stateOf<Surface>(layer).acked = serial; },
            .destroy = destroySelf
        };
        auto& self = stateOf<Surface>(surface);
        self.level = level;
        self.screen = &stateOf<Screen>(output);
        self.layer = make(client, zwlr_layer_surface_v1_interface,
                          static_cast<std::uint32_t>(wl_resource_get_version(shell)), id, &kLayer,
                          &self, [](wl_resource* gone) { stateOf<Surface>(gone).layer = nullptr; });
    }

    static void bindShell(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr struct zwlr_layer_shell_v1_interface kShell {
            .get_layer_surface = addLayer, .destroy = destroySelf
        };
        make(client, zwlr_layer_shell_v1_interface, version, id, &kShell, data);
    }

    static void bindViewporter(wl_client* client, void* data, std::uint32_t version,
                               std::uint32_t id) {
        static constexpr struct wp_viewport_interface kViewport {
            .destroy = destroySelf,
            .set_source = [](wl_client*, wl_resource*, wl_fixed_t, wl_fixed_t, wl_fixed_t,
                             wl_fixed_t) {},
            .set_destination = [](wl_client*, wl_resource* viewport, std::int32_t width,
                                  std::int32_t height) {
                stateOf<Surface>(viewport).destination = {width, height};
            }
        };
        static constexpr struct wp_viewporter_interface kViewporter {
            .destroy = destroySelf,
            .get_viewport = [](wl_client* who, wl_resource*, std::uint32_t viewport,
                               wl_resource* surface) {
                make(who, wp_viewport_interface, 1, viewport, &kViewport,
                     &stateOf<Surface>(surface));
            }
        };
        make(client, wp_viewporter_interface, version, id, &kViewporter, data);
    }

    static void bindLogicalOutputs(wl_client* client, void* data, std::uint32_t version,
                                   std::uint32_t id) {
        static constexpr struct zxdg_output_v1_interface kOutput { .destroy = destroySelf };
        static constexpr struct zxdg_output_manager_v1_interface kManager {
            .destroy = destroySelf, .get_xdg_output = [](wl_client* who, wl_resource*,
                                                         std::uint32_t one, wl_resource* output) {
                wl_resource* const logical =
                    make(who, zxdg_output_v1_interface, 1, one, &kOutput, nullptr);
                const QRect frame = stateOf<Screen>(output).logical;
                zxdg_output_v1_send_logical_position(logical, frame.x(), frame.y());
                zxdg_output_v1_send_logical_size(logical, frame.width(), frame.height());
                zxdg_output_v1_send_done(logical);
            }
        };
        make(client, zxdg_output_manager_v1_interface, version, id, &kManager, data);
    }

    static void bindScreen(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        const auto& screen = *static_cast<Screen*>(data);
        wl_resource* const output = make(client, wl_output_interface, version, id, nullptr, data);
        wl_output_send_geometry(output, screen.place.x(), screen.place.y(), 0, 0, 0, "maker",
                                "model", screen.transform);
        // One that it could have, too.
        wl_output_send_mode(output, 0, 640, 480, 60000);
        wl_output_send_mode(output, WL_OUTPUT_MODE_CURRENT, screen.mode.width(),
                            screen.mode.height(), 60000);
        wl_output_send_scale(output, screen.scale);
        wl_output_send_done(output);
    }
};

int FakeLayerShell::offerSurfaces() {
    wl_display_init_shm(m_compositor.display());
    return m_compositor.offer(wl_compositor_interface, 4, Bindings::bindCompositor, this);
}

int FakeLayerShell::offerShell(int version) {
    return m_compositor.offer(zwlr_layer_shell_v1_interface, version, Bindings::bindShell, this);
}

int FakeLayerShell::offerViewporter() {
    return m_compositor.offer(wp_viewporter_interface, 1, Bindings::bindViewporter, this);
}

int FakeLayerShell::offerLogicalOutputs() {
    return m_compositor.offer(zxdg_output_manager_v1_interface, 1, Bindings::bindLogicalOutputs,
                              this);
}

int FakeLayerShell::offerScreen(const Screen& screen) {
    return m_compositor.offer(wl_output_interface, 2, Bindings::bindScreen,
                              &m_screens.emplace_back(screen));
}

void FakeLayerShell::commit(Surface& surface) {
    ++surface.commits;
    wl_resource* const buffer = std::exchange(surface.attached, nullptr);
    if (buffer == nullptr) return;
    if (m_releases) release(surface);
    wl_shm_buffer* const memory = wl_shm_buffer_get(buffer);
    wl_shm_buffer_begin_access(memory);
    surface.pictures.push_back(
        QImage(static_cast<const uchar*>(wl_shm_buffer_get_data(memory)),
               wl_shm_buffer_get_width(memory), wl_shm_buffer_get_height(memory),
               wl_shm_buffer_get_stride(memory), QImage::Format_ARGB32_Premultiplied)
            .copy());
    wl_shm_buffer_end_access(memory);
    surface.held.push_back(std::make_shared<Held>(buffer, surface));
}

void FakeLayerShell::release(Surface& surface) {
    for (const auto& held : std::exchange(surface.held, {}))
        wl_buffer_send_release(held->buffer);
}

void FakeLayerShell::configure(Surface& surface, std::uint32_t width, std::uint32_t height) {
    zwlr_layer_surface_v1_send_configure(surface.layer, ++s_serial, width, height);
    m_compositor.settle();
}

void FakeLayerShell::close(Surface& surface) {
    zwlr_layer_surface_v1_send_closed(surface.layer);
    m_compositor.settle();
}

void FakeLayerShell::askForFrame(Surface& surface) {
    for (wl_resource* callback : std::exchange(surface.frames, {})) {
        wl_callback_send_done(callback, 0);
        wl_resource_destroy(callback);
    }
    m_compositor.settle();
}

} // namespace vantle::tests
