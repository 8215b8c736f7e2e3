// The compositor's outputs: frames and pixel sizes.
#pragma once

#include "platform/wayland/WaylandConnection.h"

#include <QObject>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

struct wl_output;
struct zxdg_output_manager_v1;

namespace vantle {

/// Frames are in the compositor's logical px; at scale 1.5, an output of 1920x1200 pixels has a
/// frame of 1280x800. Main thread.
class WaylandOutputs final : public QObject {
    Q_OBJECT

public:
    explicit WaylandOutputs(WaylandConnection& connection);
    ~WaylandOutputs() override;

    struct Shape {
        std::uint32_t name = 0;      ///< of its global
        wl_output* output = nullptr; ///< until removed()
        QRect frame;
        QSize pixels;  ///< after rotation
        int scale = 1; ///< rounded up
    };
    /// Returns the outputs whose frame is known.
    [[nodiscard]] std::vector<Shape> all() const;

Q_SIGNALS:
    /// The output is removed; its proxy is destroyed after this signal.
    void removed(std::uint32_t name);

private:
    class Output;

    void choose();
    void follow(const WaylandGlobal& global);
    void forget(std::uint32_t global);
    void lose();
    void release();

    WaylandConnection& m_connection;
    zxdg_output_manager_v1* m_manager = nullptr;                ///< null where not offered
    std::map<std::uint32_t, std::unique_ptr<Output>> m_outputs; ///< by global name
};

} // namespace vantle
