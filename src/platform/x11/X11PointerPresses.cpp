#include "platform/x11/X11PointerPresses.h"

#include <QCursor>

namespace vantle {

namespace {

constexpr std::uint32_t kLeftButton = 1;
constexpr std::uint32_t kRightButton = 3;

} // namespace

void X11PointerPresses::watch() {
    if (m_watch) return;
    m_watch = m_presses.watch([this](std::uint32_t button) {
        if (button == kLeftButton || button == kRightButton) Q_EMIT pressed(QCursor::pos());
    });
}

} // namespace vantle
