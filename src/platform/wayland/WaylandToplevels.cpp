#include "platform/wayland/WaylandToplevels.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <wayland-client.h>
#include <wlr-foreign-toplevel-management-v1-client-protocol.h>

namespace vantle {

namespace {

constexpr std::uint32_t kNewest = 3;

bool isActivated(const wl_array* states) {
    const std::span values(static_cast<const std::uint32_t*>(states->data),
                           states->size / sizeof(std::uint32_t));
    return std::ranges::find(values, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) !=
           values.end();
}

} // namespace

/// A window. Its properties count from the next `done` on.
class WaylandToplevels::Toplevel {
public:
    Toplevel(WaylandToplevels& owner, zwlr_foreign_toplevel_handle_v1* handle)
        : m_owner(owner)
        , m_handle(handle) {
        static constexpr zwlr_foreign_toplevel_handle_v1_listener kListener{
            .title = [](void*, zwlr_foreign_toplevel_handle_v1*, const char*) {},
            .app_id = [](void* data, zwlr_foreign_toplevel_handle_v1*,
                         const char* id) { of(data).m_next.id = QString::fromUtf8(id); },
            .output_enter = [](void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {},
            .output_leave = [](void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {},
            .state = [](void* data, zwlr_foreign_toplevel_handle_v1*,
                        wl_array* states) { of(data).m_next.isActivated = isActivated(states); },
            .done = [](void* data, zwlr_foreign_toplevel_handle_v1*) { of(data).takeOver(); },
            .closed = [](void* data,
                         zwlr_foreign_toplevel_handle_v1*) { of(data).m_owner.remove(&of(data)); },
            .parent = [](void*, zwlr_foreign_toplevel_handle_v1*,
                         zwlr_foreign_toplevel_handle_v1*) {}};
        zwlr_foreign_toplevel_handle_v1_add_listener(handle, &kListener, this);
    }
    ~Toplevel() { zwlr_foreign_toplevel_handle_v1_destroy(m_handle); }
    Toplevel(const Toplevel&) = delete;
    Toplevel& operator=(const Toplevel&) = delete;

    struct State {
        QString id;
        bool isActivated = false;
    };
    [[nodiscard]] const State& state() const { return m_state; }

private:
    static Toplevel& of(void* data) { return *static_cast<Toplevel*>(data); }

    void takeOver() {
        const bool comesToTheFront = m_next.isActivated && !m_state.isActivated;
        m_state = m_next;
        // The previous window is reported as deactivated only after this.
        if (comesToTheFront) {
            auto& all = m_owner.m_toplevels;
            const auto self = std::ranges::find_if(
                all, [this](const auto& toplevel) { return toplevel.get() == this; });
            all.splice(all.begin(), all, self);
        }
        m_owner.refresh();
    }

    WaylandToplevels& m_owner;
    zwlr_foreign_toplevel_handle_v1* const m_handle;
    State m_state, m_next;
};

WaylandToplevels::WaylandToplevels(WaylandConnection& connection, Reading reading)
    : ReportedFrontmostApp(std::move(reading))
    , m_connection(connection) {
    connect(&m_connection, &WaylandConnection::ready, this, &WaylandToplevels::choose);
    connect(&m_connection, &WaylandConnection::added, this, &WaylandToplevels::choose);
    connect(&m_connection, &WaylandConnection::broken, this, &WaylandToplevels::lose);
    connect(&m_connection, &WaylandConnection::removed, this, [this](std::uint32_t name) {
        if (m_manager != nullptr && name == m_managerName) lose();
    });
    choose();
}

WaylandToplevels::~WaylandToplevels() { release(); }

void WaylandToplevels::choose() {
    if (m_manager != nullptr || !m_connection.isReady()) return;
    const auto& interface = zwlr_foreign_toplevel_manager_v1_interface;
    const auto global = m_connection.global(interface.name);
    if (!global) return;
    static constexpr zwlr_foreign_toplevel_manager_v1_listener kListener{
        .toplevel =
            [](void* data, zwlr_foreign_toplevel_manager_v1*,
               zwlr_foreign_toplevel_handle_v1* handle) {
                static_cast<WaylandToplevels*>(data)->add(handle);
            },
        .finished =
            [](void* data, zwlr_foreign_toplevel_manager_v1*) {
                static_cast<WaylandToplevels*>(data)->lose();
            }};
    m_manager = m_connection.bind<zwlr_foreign_toplevel_manager_v1>(*global, interface, kNewest);
    m_managerName = global->name;
    zwlr_foreign_toplevel_manager_v1_add_listener(m_manager, &kListener, this);
    m_connection.flush();
    begin();
}

void WaylandToplevels::lose() {
    if (m_manager == nullptr) return;
    release();
    end();
}

void WaylandToplevels::release() {
    m_toplevels.clear();
    if (m_manager != nullptr)
        zwlr_foreign_toplevel_manager_v1_destroy(std::exchange(m_manager, nullptr));
}

void WaylandToplevels::add(zwlr_foreign_toplevel_handle_v1* handle) {
    m_toplevels.push_back(std::make_unique<Toplevel>(*this, handle));
}

void WaylandToplevels::remove(Toplevel* toplevel) {
    m_toplevels.remove_if([toplevel](const auto& one) { return one.get() == toplevel; });
    refresh();
}

void WaylandToplevels::refresh() {
    const auto active = std::ranges::find_if(
        m_toplevels, [](const auto& toplevel) { return toplevel->state().isActivated; });
    if (active == m_toplevels.end()) return reportNone();
    const QString& id = (*active)->state().id;
    // For an X11 window this is the class.
    report({.applicationId = id, .windowClass = id, .instance = {}, .processId = {}});
}

} // namespace vantle
