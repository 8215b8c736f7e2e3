// The application in front, from a Wayland compositor that tells its windows.
#pragma once

#include "platform/ReportedFrontmostApp.h"
#include "platform/wayland/WaylandConnection.h"

#include <list>
#include <memory>

struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_foreign_toplevel_handle_v1;

namespace vantle {

/// By `zwlr_foreign_toplevel_manager_v1`: native windows and those of X11 alike. No panel of ours
/// is in that list.
class WaylandToplevels final : public ReportedFrontmostApp {
    Q_OBJECT

public:
    /// `connection` must outlive this.
    WaylandToplevels(WaylandConnection& connection, Reading reading);
    ~WaylandToplevels() override;

private:
    class Toplevel;

    void choose();
    void release();
    void lose();
    void add(zwlr_foreign_toplevel_handle_v1* handle);
    void remove(Toplevel* toplevel);
    void refresh();

    WaylandConnection& m_connection;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    std::uint32_t m_managerName = 0;
    std::list<std::unique_ptr<Toplevel>> m_toplevels; ///< the one activated last in front
};

} // namespace vantle
