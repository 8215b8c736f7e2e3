// When the capsule opens and when it closes: the pointer, flashes, and what holds it open.
#pragma once

#include "base/Scheduler.h"

#include <functional>

namespace vantle {

/// Main thread. Nothing here knows how an opening looks; it is over at once, and who draws it may
/// take time for it.
class CapsuleOpening {
public:
    struct Environment {
        Scheduler& scheduler;
        /// Whether the pointer is in the part that feels it, now. False where there is no window.
        std::function<bool()> pointerInside;
        /// Called after each change of isExpanded().
        std::function<void()> changed;
    };

    explicit CapsuleOpening(Environment environment) : m_env(std::move(environment)) {}

    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    [[nodiscard]] int collapseSuspendCount() const { return m_collapseSuspendCount; }

    void expand();
    void collapse();

    /// The window was told that the pointer came into the part that feels it, or left it.
    void pointerEntered();
    void pointerLeft();
    /// The pointer rests in that part where the window is not told of it.
    void pointerRested();

    /// Opens, and closes again in `hold` unless the pointer holds it open by then.
    void beginSessionFlash(Seconds hold);

    /// Keeps the capsule open under the person's hand while something else has their attention.
    /// Calls nest.
    void pushCollapseSuspend();
    /// Ends one of them; one too many does nothing. The last one lets the capsule close soon.
    void popCollapseSuspend();

    /// Gives up all that is planned. What is open stays open.
    void cancel();

private:
    void scheduleCollapse(Seconds delay);
    void collapseUnlessPointerInside();
    void watchPointer();

    Environment m_env;
    bool m_isExpanded = false;
    int m_collapseSuspendCount = 0;
    bool m_isHovered = false; ///< as the window was told
    TimerHandle m_collapseWork;
    TimerHandle m_flashWork;
    TimerHandle m_watch; ///< while the pointer holds it open and the window is not told of it
};

} // namespace vantle
