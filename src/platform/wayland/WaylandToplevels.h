// The application in front, from a Wayland compositor.
#pragma once

#include "platform/ReportedFrontmostApp.h"
#include "platform/wayland/WaylandConnection.h"

#include <list>
#include <memory>

struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_foreign_toplevel_handle_v1;

namespace vantle {

/// `zwlr_foreign_toplevel_manager_v1`: native and X11 windows, but not the program's panels. Main
/// thread.
class WaylandToplevels final : public ReportedFrontmostApp {
    Q_OBJECT

public:
    /// `connection` must outlive this object.
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
    std::list<std::unique_ptr<Toplevel>> m_toplevels; ///< most recently activated first
};

} // namespace vantle
