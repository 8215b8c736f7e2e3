#include "platform/wayland/WaylandOutputPower.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <wayland-client.h>
#include <wlr-output-power-management-v1-client-protocol.h>

namespace vantle {

namespace {

constexpr unsigned kOutputsOff = 0;

} // namespace

class WaylandOutputPower::Output {
public:
    Output(WaylandOutputPower& owner, wl_output* output)
        : m_owner(owner)
        , m_output(output)
        , m_power(zwlr_output_power_manager_v1_get_output_power(owner.m_manager, output)) {
        static constexpr zwlr_output_power_v1_listener kListener{
            .mode =
                [](void* data, zwlr_output_power_v1*, std::uint32_t mode) {
                    of(data).take(mode == ZWLR_OUTPUT_POWER_V1_MODE_OFF);
                },
            // Another program controls the output, or it has no power modes.
            .failed = [](void* data, zwlr_output_power_v1*) { of(data).take(std::nullopt); }};
        zwlr_output_power_v1_add_listener(m_power, &kListener, this);
    }
    ~Output() {
        zwlr_output_power_v1_destroy(m_power);
        wl_output_destroy(m_output);
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    std::optional<bool> isOff;

private:
    static Output& of(void* data) { return *static_cast<Output*>(data); }
    void take(std::optional<bool> off) {
        isOff = off;
        m_owner.refresh();
    }

    WaylandOutputPower& m_owner;
    wl_output* const m_output;
    zwlr_output_power_v1* const m_power;
};

WaylandOutputPower::WaylandOutputPower(WaylandConnection& connection) : m_connection(connection) {
    connect(&m_connection, &WaylandConnection::ready, this, &WaylandOutputPower::choose);
    connect(&m_connection, &WaylandConnection::added, this, &WaylandOutputPower::choose);
    connect(&m_connection, &WaylandConnection::removed, this, &WaylandOutputPower::forget);
    connect(&m_connection, &WaylandConnection::broken, this, &WaylandOutputPower::lose);
    choose();
}

WaylandOutputPower::~WaylandOutputPower() { release(); }

void WaylandOutputPower::choose() {
    if (!m_connection.isReady()) return;
    if (m_manager == nullptr) {
        const auto& interface = zwlr_output_power_manager_v1_interface;
        const auto global = m_connection.global(interface.name);
        if (!global) return;
        m_manager = m_connection.bind<zwlr_output_power_manager_v1>(*global, interface, 1);
        m_managerName = global->name;
    }
    for (const WaylandGlobal& global : m_connection.globals())
        if (global.interface == wl_output_interface.name && !m_outputs.contains(global.name))
            follow(global);
    m_connection.flush();
}

void WaylandOutputPower::follow(const WaylandGlobal& global) {
    auto* const output = m_connection.bind<wl_output>(global, wl_output_interface, 1);
    m_outputs.emplace(global.name, std::make_unique<Output>(*this, output));
}

void WaylandOutputPower::forget(std::uint32_t global) {
    if (m_manager != nullptr && global == m_managerName) return lose();
    if (m_outputs.erase(global) > 0) refresh();
}

void WaylandOutputPower::lose() {
    release();
    refresh();
}

void WaylandOutputPower::release() {
    m_outputs.clear();
    if (m_manager != nullptr)
        zwlr_output_power_manager_v1_destroy(std::exchange(m_manager, nullptr));
}

void WaylandOutputPower::refresh() {
    const auto tells = [](const auto& entry) { return entry.second->isOff.has_value(); };
    const auto isOn = [](const auto& entry) { return !entry.second->isOff.value_or(true); };
    setCause(kOutputsOff,
             std::ranges::any_of(m_outputs, tells) && std::ranges::none_of(m_outputs, isOn));
}

} // namespace vantle
