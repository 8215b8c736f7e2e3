// The port of the screen edges reserved by bars.
#pragma once

#include <QObject>
#include <QRect>

#include <vector>

namespace vantle {

/// A strip from that edge inwards, in device pixels.
struct ReservedStrip {
    Qt::Edge edge = Qt::TopEdge;
    QRect area;
    friend bool operator==(const ReservedStrip&, const ReservedStrip&) = default;
};

/// The body here is that of a desktop without bars. Main thread.
class ReservedStrips : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] virtual std::vector<ReservedStrip> all() { return {}; }

Q_SIGNALS:
    void changed();
};

} // namespace vantle
