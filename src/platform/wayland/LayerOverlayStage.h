// Overlays that are surfaces of the compositor's own, by its layer shell.
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

/// They lie above full-screen windows of both kinds, let everything through, and have the pixels of
/// their output at every scale. A compositor that goes away, or takes the protocol back, ends what
/// is up. Main thread.
class LayerOverlayStage final : public QObject, public OverlayStage {
    Q_OBJECT

public:
    /// All must outlive this. `connection` is best one for this alone: a compositor that finds
    /// fault with a request ends it.
    LayerOverlayStage(WaylandConnection& connection, const Clock& clock, Scheduler& scheduler);
    ~LayerOverlayStage() override;

    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] std::vector<QRect> frames() const override;
    /// What it returns must not outlive this.
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override;

private:
    class Place;

    template <typename Proxy>
    struct Bound {
        Proxy* proxy = nullptr; ///< null where it is not offered
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
    std::list<LayerOverlayWindow> m_windows; ///< until their places go
};

} // namespace vantle
