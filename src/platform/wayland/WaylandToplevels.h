// The application in front, from a Wayland compositor that tells its windows.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"
#include "platform/wayland/WaylandConnection.h"

#include <functional>
#include <list>
#include <memory>

struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_foreign_toplevel_handle_v1;

namespace vantle {

/// By `zwlr_foreign_toplevel_manager_v1`: native windows and those of X11 alike.
///
/// "None is active" comes at some switches for a moment, and while a panel of ours has the
/// keyboard, which is no window of that list: it is believed once it has lasted
/// `noneIsBelievedAfter` without a panel. Only a change of application is told, not one of windows.
class WaylandToplevels final : public FrontmostApp {
    Q_OBJECT

public:
    static constexpr Seconds noneIsBelievedAfter{0.2};

    struct Environment {
        WaylandConnection& connection;
        Scheduler& scheduler;
        IdentityResolver resolve;
        std::function<bool()> oursHasTheKeyboard;
    };
    /// What the references name must outlive this.
    explicit WaylandToplevels(Environment environment);
    ~WaylandToplevels() override;

    [[nodiscard]] std::optional<Application> frontmost() override { return m_application; }
    /// All where the compositor has the protocol, else none.
    [[nodiscard]] AppCoverage coverage() const override;

private:
    class Toplevel;

    void choose();
    void release();
    void lose();
    void add(zwlr_foreign_toplevel_handle_v1* handle);
    void remove(Toplevel* toplevel);
    void refresh();
    void waitForNone();
    void adopt(std::optional<Application> application);

    const Environment m_env;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    std::uint32_t m_managerName = 0;
    std::list<std::unique_ptr<Toplevel>> m_toplevels; ///< the one activated last in front
    std::optional<Application> m_application;
    TimerHandle m_none; ///< while "none" is not believed yet
};

} // namespace vantle
