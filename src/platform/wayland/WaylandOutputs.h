// The compositor's outputs: where each stands and of how many pixels it is.
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

/// Frames are in the compositor's own px, by which it places windows; at a scale of 1.5, an output
/// of 1920x1200 pixels is 1280x800 of them. Main thread.
class WaylandOutputs final : public QObject {
    Q_OBJECT

public:
    explicit WaylandOutputs(WaylandConnection& connection);
    ~WaylandOutputs() override;

    struct Shape {
        std::uint32_t name = 0;      ///< of its global
        wl_output* output = nullptr; ///< until removed()
        QRect frame;
        QSize pixels;  ///< as the output is turned
        int scale = 1; ///< the next whole number, where the true one is none
    };
    /// Those whose frame is known.
    [[nodiscard]] std::vector<Shape> all() const;

Q_SIGNALS:
    /// The output of that name goes, and its proxy after this.
    void removed(std::uint32_t name);

private:
    class Output;

    void choose();
    void follow(const WaylandGlobal& global);
    void forget(std::uint32_t global);
    void lose();
    void release();

    WaylandConnection& m_connection;
    zxdg_output_manager_v1* m_manager = nullptr;                ///< null where it is not offered
    std::map<std::uint32_t, std::unique_ptr<Output>> m_outputs; ///< by the numbers of their globals
};

} // namespace vantle
