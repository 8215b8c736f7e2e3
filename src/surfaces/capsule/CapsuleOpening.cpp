#include "surfaces/capsule/CapsuleOpening.h"

namespace vantle {

namespace {

constexpr Seconds kCloseAfterLeaving{0.5};
constexpr Seconds kCloseAfterSuspension{0.3};
constexpr Seconds kWatch{0.1};

} // namespace

void CapsuleOpening::expand() {
    if (m_isExpanded) return;
    m_env.opens();
    m_isExpanded = true;
    m_collapseWork.reset();
    m_env.changed();
}

void CapsuleOpening::collapse() {
    if (!m_isExpanded) return;
    m_isExpanded = false;
    m_collapseWork.reset();
    m_watch.reset();
    m_env.changed();
}

void CapsuleOpening::pointerEntered() {
    m_isHovered = true;
    m_collapseWork.reset();
    m_watch.reset();
    expand();
}

void CapsuleOpening::pointerLeft() {
    m_isHovered = false;
    scheduleCollapse(kCloseAfterLeaving);
}

void CapsuleOpening::pointerRested() {
    m_collapseWork.reset();
    expand();
    watchPointer();
}

void CapsuleOpening::beginSessionFlash(Seconds hold) {
    expand();
    // A flash ends on time even while collapsing is suspended.
    m_flashWork = m_env.scheduler.scheduleOnce(hold, [this] { collapseUnlessPointerInside(); });
}

void CapsuleOpening::pushCollapseSuspend() {
    ++m_collapseSuspendCount;
    m_collapseWork.reset();
}

void CapsuleOpening::popCollapseSuspend() {
    if (m_collapseSuspendCount == 0) return;
    --m_collapseSuspendCount;
    if (m_collapseSuspendCount > 0) return;
    if (m_env.pointerInside())
        watchPointer();
    else
        scheduleCollapse(kCloseAfterSuspension);
}

void CapsuleOpening::cancel() {
    m_collapseWork.reset();
    m_flashWork.reset();
    m_watch.reset();
}

void CapsuleOpening::scheduleCollapse(Seconds delay) {
    m_collapseWork = m_env.scheduler.scheduleOnce(delay, [this] {
        if (m_collapseSuspendCount == 0) collapseUnlessPointerInside();
    });
}

void CapsuleOpening::collapseUnlessPointerInside() {
    if (m_env.pointerInside())
        watchPointer();
    else
        collapse();
}

/// A part of the input area may be outside the window, over the desktop's bar, where the window
/// gets no leave event.
void CapsuleOpening::watchPointer() {
    if (!m_isExpanded || m_isHovered || m_watch) return;
    m_watch = m_env.scheduler.scheduleRepeatingTimer(kWatch, kWatch * 0.5, [this] {
        if (m_env.pointerInside()) return;
        scheduleCollapse(kCloseAfterLeaving);
        m_watch.reset();
    });
}

} // namespace vantle
