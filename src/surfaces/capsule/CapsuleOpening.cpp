#include "surfaces/capsule/CapsuleOpening.h"

namespace vantle {

namespace {

constexpr Seconds kCloseAfterLeaving{0.5};
constexpr Seconds kCloseAfterSuspension{0.3};

} // namespace

void CapsuleOpening::expand() {
    if (m_isExpanded) return;
    m_isExpanded = true;
    m_collapseWork.reset();
    m_env.changed();
}

void CapsuleOpening::collapse() {
    if (!m_isExpanded) return;
    m_isExpanded = false;
    m_collapseWork.reset();
    m_env.changed();
}

void CapsuleOpening::pointerEntered() {
    m_collapseWork.reset();
    expand();
}

void CapsuleOpening::pointerLeft() { scheduleCollapse(kCloseAfterLeaving); }

void CapsuleOpening::beginSessionFlash(Seconds hold) {
    expand();
    // A flash ends at its time, suspended or not.
    m_flashWork = m_env.scheduler.scheduleOnce(hold, [this] {
        if (!m_env.pointerInside()) collapse();
    });
}

void CapsuleOpening::pushCollapseSuspend() {
    ++m_collapseSuspendCount;
    m_collapseWork.reset();
}

void CapsuleOpening::popCollapseSuspend() {
    if (m_collapseSuspendCount == 0) return;
    --m_collapseSuspendCount;
    if (m_collapseSuspendCount == 0 && !m_env.pointerInside())
        scheduleCollapse(kCloseAfterSuspension);
}

void CapsuleOpening::cancel() {
    m_collapseWork.reset();
    m_flashWork.reset();
}

void CapsuleOpening::scheduleCollapse(Seconds delay) {
    m_collapseWork = m_env.scheduler.scheduleOnce(delay, [this] {
        if (m_collapseSuspendCount == 0 && !m_env.pointerInside()) collapse();
    });
}

} // namespace vantle
