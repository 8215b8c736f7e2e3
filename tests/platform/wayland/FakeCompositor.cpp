#include "platform/wayland/FakeCompositor.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ext-idle-notify-v1-server-protocol.h>
#include <kde-idle-server-protocol.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>
#include <wayland-server.h>
#include <wlr-foreign-toplevel-management-v1-server-protocol.h>
#include <wlr-output-power-management-v1-server-protocol.h>

namespace vantle::tests {

namespace {

void destroyResource(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

template <typename T>
T* dataOf(wl_resource* resource) {
    return static_cast<T*>(wl_resource_get_user_data(resource));
}

} // namespace

/// What a client's requests come to.
struct FakeCompositor::Bindings {
    static FakeCompositor& of(wl_resource* resource) { return *dataOf<FakeCompositor>(resource); }

    // A notification, of either protocol.
    static void addIdle(wl_client* client, wl_resource* manager, std::uint32_t id,
                        std::uint32_t timeout, bool isKde, bool ofInput) {
        FakeCompositor& self = of(manager);
        static constexpr struct ext_idle_notification_v1_interface kExt {
            .destroy = destroyResource
        };
        static constexpr struct org_kde_kwin_idle_timeout_interface kKde {
            .release = destroyResource, .simulate_user_activity = [](wl_client*, wl_resource*) {}
        };
        auto idle = std::make_unique<Idle>();
        idle->resource = wl_resource_create(client,
                                            isKde ? &org_kde_kwin_idle_timeout_interface
                                                  : &ext_idle_notification_v1_interface,
                                            wl_resource_get_version(manager), id);
        idle->isKde = isKde;
        idle->ofInput = ofInput;
        idle->timeout = timeout;
        wl_resource_set_implementation(idle->resource,
                                       isKde ? static_cast<const void*>(&kKde) : &kExt, &self,
                                       [](wl_resource* gone) {
                                           std::erase_if(of(gone).m_idles, [gone](const auto& one) {
                                               return one->resource == gone;
                                           });
                                       });
        self.m_idles.push_back(std::move(idle));
    }

    static void bindNotifier(wl_client* client, void* data, std::uint32_t version,
                             std::uint32_t id) {
        static constexpr struct ext_idle_notifier_v1_interface kNotifier {
            .destroy = destroyResource,
            .get_idle_notification =
                [](wl_client* who, wl_resource* manager, std::uint32_t one, std::uint32_t timeout,
                   wl_resource*) { addIdle(who, manager, one, timeout, false, false); },
            .get_input_idle_notification =
                [](wl_client* who, wl_resource* manager, std::uint32_t one, std::uint32_t timeout,
                   wl_resource*) { addIdle(who, manager, one, timeout, false, true); }
        };
        wl_resource_set_implementation(wl_resource_create(client, &ext_idle_notifier_v1_interface,
                                                          static_cast<int>(version), id),
                                       &kNotifier, data, nullptr);
    }
    static void bindKde(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr struct org_kde_kwin_idle_interface kIdle {
            .get_idle_timeout = [](wl_client* who, wl_resource* manager, std::uint32_t one,
                                   wl_resource*, std::uint32_t timeout) {
                addIdle(who, manager, one, timeout, true, false);
            }
        };
        wl_resource_set_implementation(
            wl_resource_create(client, &org_kde_kwin_idle_interface, static_cast<int>(version), id),
            &kIdle, data, nullptr);
    }
    static void bindSeat(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        wl_resource_set_implementation(
            wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id), nullptr,
            data, nullptr);
    }
    static void bindToplevels(wl_client* client, void* data, std::uint32_t version,
                              std::uint32_t id) {
        static constexpr struct zwlr_foreign_toplevel_manager_v1_interface kManager {
            .stop = [](wl_client*, wl_resource*) {}
        };
        auto* const manager = wl_resource_create(
            client, &zwlr_foreign_toplevel_manager_v1_interface, static_cast<int>(version), id);
        static_cast<FakeCompositor*>(data)->m_toplevels = manager;
        wl_resource_set_implementation(manager, &kManager, data, nullptr);
    }
    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        wl_resource_set_implementation(
            wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id),
            nullptr, data, nullptr); // data: its global
    }
    static void bindPower(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr struct zwlr_output_power_v1_interface kPower {
            .set_mode = [](wl_client*, wl_resource*, std::uint32_t) {}, .destroy = destroyResource
        };
        static constexpr struct zwlr_output_power_manager_v1_interface kManager {
            .get_output_power =
                [](wl_client* who, wl_resource* manager, std::uint32_t one, wl_resource* output) {
                    auto* const power =
                        wl_resource_create(who, &zwlr_output_power_v1_interface, 1, one);
                    FakeCompositor& self = of(manager);
                    self.m_powers[*dataOf<wl_global*>(output)].push_back(power);
                    wl_resource_set_implementation(power, &kPower, &self, [](wl_resource* gone) {
                        for (auto& [global, powers] : of(gone).m_powers)
                            std::erase(powers, gone);
                    });
                    self.tellPower(*dataOf<wl_global*>(output), power);
                },
            .destroy = destroyResource
        };
        wl_resource_set_implementation(wl_resource_create(client,
                                                          &zwlr_output_power_manager_v1_interface,
                                                          static_cast<int>(version), id),
                                       &kManager, data, nullptr);
    }
};

FakeCompositor::FakeCompositor() : m_display(wl_display_create()) {
    std::array<int, 2> pair{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, pair.data()) != 0)
        return;
    m_socket = pair[0];
    m_own = pair[1];
    m_client = wl_client_create(m_display, m_own);
}

FakeCompositor::~FakeCompositor() {
    vanish();
    if (m_socket >= 0) ::close(m_socket);
    wl_display_destroy(m_display);
}

int FakeCompositor::takeSocket() { return std::exchange(m_socket, -1); }

void FakeCompositor::settle() {
    for (int quiet = 0; quiet < 3; ++quiet) {
        wl_display_flush_clients(m_display);
        QCoreApplication::processEvents();
        wl_event_loop_dispatch(wl_display_get_event_loop(m_display), 0);
    }
}

void FakeCompositor::vanish() {
    if (m_client != nullptr) wl_client_destroy(std::exchange(m_client, nullptr));
}

void FakeCompositor::talkNonsense() {
    const std::array<std::uint32_t, 4> words{0x7FFFFFFF, 0x00080063, 1, 2};
    EXPECT_EQ(write(m_own, words.data(), sizeof words), static_cast<ssize_t>(sizeof words));
}

int FakeCompositor::offer(const wl_interface& interface, int version, Bind bind) {
    // What is bound knows the compositor, but for an output, which knows its own global.
    wl_global*& global = m_globals.emplace_back();
    void* data = this;
    if (&interface == &wl_output_interface) data = &global;
    global = wl_global_create(m_display, &interface, version, data, bind);
    return static_cast<int>(m_globals.size()) - 1;
}

int FakeCompositor::offer(const wl_interface& interface, int version, Bind bind, void* data) {
    m_globals.push_back(wl_global_create(m_display, &interface, version, data, bind));
    return static_cast<int>(m_globals.size()) - 1;
}

int FakeCompositor::offerSeat() { return offer(wl_seat_interface, 5, Bindings::bindSeat); }

int FakeCompositor::offerIdleNotifier(std::uint32_t version) {
    return offer(ext_idle_notifier_v1_interface, static_cast<int>(version), Bindings::bindNotifier);
}

int FakeCompositor::offerKdeIdle() {
    return offer(org_kde_kwin_idle_interface, 1, Bindings::bindKde);
}

int FakeCompositor::offerToplevels() {
    return offer(zwlr_foreign_toplevel_manager_v1_interface, 3, Bindings::bindToplevels);
}

int FakeCompositor::offerOutputPower() {
    return offer(zwlr_output_power_manager_v1_interface, 1, Bindings::bindPower);
}

int FakeCompositor::offerOutput() { return offer(wl_output_interface, 2, Bindings::bindOutput); }

void FakeCompositor::withdraw(int number) {
    wl_global_remove(m_globals[static_cast<std::size_t>(number)]);
}

void FakeCompositor::tellIdle(Idle& idle, bool isIdle) {
    idle.idle = isIdle;
    if (idle.isKde)
        isIdle ? org_kde_kwin_idle_timeout_send_idle(idle.resource)
               : org_kde_kwin_idle_timeout_send_resumed(idle.resource);
    else
        isIdle ? ext_idle_notification_v1_send_idled(idle.resource)
               : ext_idle_notification_v1_send_resumed(idle.resource);
}

void FakeCompositor::touch() {
    for (auto& idle : m_idles)
        if (idle->idle && (idle->ofInput || !m_inhibits)) tellIdle(*idle, false);
    settle();
}

void FakeCompositor::second() {
    settle();
    for (auto& idle : m_idles)
        if (!idle->idle && (idle->ofInput || !m_inhibits)) tellIdle(*idle, true);
    settle();
}

void FakeCompositor::inhibitAndResume() {
    for (auto& idle : m_idles)
        if (idle->idle) tellIdle(*idle, false);
    m_inhibits = true;
    settle();
}

int FakeCompositor::open(const QByteArray& appId) {
    m_windows.push_back(
        wl_resource_create(m_client, &zwlr_foreign_toplevel_handle_v1_interface, 3, 0));
    static constexpr struct zwlr_foreign_toplevel_handle_v1_interface kHandle {
        .set_maximized = nullptr, .unset_maximized = nullptr, .set_minimized = nullptr,
        .unset_minimized = nullptr, .activate = nullptr, .close = nullptr, .set_rectangle = nullptr,
        .destroy = destroyResource, .set_fullscreen = nullptr, .unset_fullscreen = nullptr
    };
    wl_resource_set_implementation(m_windows.back(), &kHandle, this, nullptr);
    zwlr_foreign_toplevel_manager_v1_send_toplevel(m_toplevels, m_windows.back());
    const int window = static_cast<int>(m_windows.size()) - 1;
    say(window, appId);
    return window;
}

void FakeCompositor::say(int window, const QByteArray& appId) {
    zwlr_foreign_toplevel_handle_v1_send_app_id(m_windows[static_cast<std::size_t>(window)],
                                                appId.constData());
}

void FakeCompositor::activate(int window, bool isActivated) {
    wl_array states;
    wl_array_init(&states);
    const auto add = [&states](std::uint32_t state) {
        *static_cast<std::uint32_t*>(wl_array_add(&states, sizeof state)) = state;
    };
    add(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MAXIMIZED);
    if (isActivated) add(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED);
    zwlr_foreign_toplevel_handle_v1_send_state(m_windows[static_cast<std::size_t>(window)],
                                               &states);
    wl_array_release(&states);
}

void FakeCompositor::done(int window) {
    zwlr_foreign_toplevel_handle_v1_send_done(m_windows[static_cast<std::size_t>(window)]);
    settle();
}

void FakeCompositor::close(int window) {
    zwlr_foreign_toplevel_handle_v1_send_closed(m_windows[static_cast<std::size_t>(window)]);
    settle();
}

void FakeCompositor::finish() {
    zwlr_foreign_toplevel_manager_v1_send_finished(m_toplevels);
    settle();
}

void FakeCompositor::tellPower(wl_global* output, wl_resource* power) {
    zwlr_output_power_v1_send_mode(power, m_dark.contains(output) ? ZWLR_OUTPUT_POWER_V1_MODE_OFF
                                                                  : ZWLR_OUTPUT_POWER_V1_MODE_ON);
}

void FakeCompositor::power(int output, bool on) {
    wl_global* const global = m_globals[static_cast<std::size_t>(output)];
    if (on)
        m_dark.erase(global);
    else
        m_dark.insert(global);
    for (auto* power : m_powers[global])
        tellPower(global, power);
    settle();
}

void FakeCompositor::failPower(int output) {
    for (auto* power : m_powers[m_globals[static_cast<std::size_t>(output)]])
        zwlr_output_power_v1_send_failed(power);
    settle();
}

} // namespace vantle::tests
