// The overlay stage of layer shell surfaces.
#pragma once

#include "platform/OverlayStage.h"
#include "platform/wayland/LayerOverlayWindow.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandOutputs.h"

#include <QObject>

#include <cstdint>
#include <list>
#include <memory>
#include <vector>

namespace vantle {

/// They are above full-screen windows, native or X11, let all input through, and have their
/// output's pixels at every scale. Losing the compositor or the protocol ends running shows. Main
/// thread.
class LayerOverlayStage final : public QObject, public OverlayStage {
    Q_OBJECT

public:
    /// All must outlive this object. `connection` should be used by nothing else: the compositor
    /// ends it after a protocol error.
    LayerOverlayStage(WaylandConnection& connection, const Clock& clock, Scheduler& scheduler);
    ~LayerOverlayStage() override;

    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] std::vector<QRect> frames() const override;
    /// The result must not outlive this object.
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override;

private:
    class Place;

    template <typename Proxy>
    struct Bound {
        Proxy* proxy = nullptr; ///< null where not offered
        std::uint32_t name = 0;
    };
    template <typename Proxy>
    void bindOnce(Bound<Proxy>& bound, const wl_interface& interface, std::uint32_t newest);

    void choose();
    void forget(std::uint32_t global);
    void lose();

    WaylandConnection& m_connection;
    const Clock& m_clock;
    Scheduler& m_scheduler;
    WaylandOutputs m_outputs;
    Bound<wl_compositor> m_compositor;
    Bound<wl_shm> m_memory;
    Bound<zwlr_layer_shell_v1> m_shell;
    Bound<wp_viewporter> m_viewporter;
    std::list<LayerOverlayWindow> m_windows; ///< kept until their owners are destroyed
};

} // namespace vantle
