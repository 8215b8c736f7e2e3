// The sleep of screens that a Wayland compositor switched off.
#pragma once

#include "platform/CausedScreenPower.h"
#include "platform/wayland/WaylandConnection.h"

#include <map>
#include <memory>

struct zwlr_output_power_manager_v1;

namespace vantle {

/// `zwlr_output_power_manager_v1`: asleep while every reporting output is off. Main thread.
class WaylandOutputPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// `connection` must outlive this object.
    explicit WaylandOutputPower(WaylandConnection& connection);
    ~WaylandOutputPower() override;

private:
    class Output;

    void choose();
    void follow(const WaylandGlobal& global);
    void forget(std::uint32_t global);
    void release();
    void lose();
    void refresh();

    WaylandConnection& m_connection;
    zwlr_output_power_manager_v1* m_manager = nullptr;
    std::uint32_t m_managerName = 0;
    std::map<std::uint32_t, std::unique_ptr<Output>> m_outputs; ///< by global name
};

} // namespace vantle
