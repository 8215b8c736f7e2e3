#include "surfaces/panel/PanelRoot.h"

#include <utility>

namespace vantle {

void PanelRoot::setComposited(bool composited) {
    if (std::exchange(m_composited, composited) != composited) Q_EMIT compositedChanged();
}

void PanelRoot::setUp(bool up) {
    if (std::exchange(m_up, up) != up) Q_EMIT upChanged();
}

void PanelRoot::setMaximumHeight(int height) {
    if (std::exchange(m_maximumHeight, height) != height) Q_EMIT maximumHeightChanged();
}

QMargins PanelRoot::room() const {
    const QRect inside = ground();
    const QSize whole = QSizeF(implicitWidth(), implicitHeight()).toSize();
    return {inside.x(), inside.y(), whole.width() - inside.x() - inside.width(),
            whole.height() - inside.y() - inside.height()};
}

} // namespace vantle
