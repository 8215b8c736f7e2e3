// The rules for opening and closing the capsule.
//
// Inputs are the pointer, flashes and suspensions.
#pragma once

#include "base/Scheduler.h"

#include <functional>

namespace vantle {

/// Switches state immediately; the view animates it. Main thread.
class CapsuleOpening {
public:
    struct Environment {
        Scheduler& scheduler;
        /// Whether the pointer is in the input area now. False without a window.
        std::function<bool()> pointerInside;
        /// Called before isExpanded() becomes true.
        std::function<void()> opens;
        /// Called after each change of isExpanded().
        std::function<void()> changed;
    };

    explicit CapsuleOpening(Environment environment) : m_env(std::move(environment)) {}

    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    [[nodiscard]] int collapseSuspendCount() const { return m_collapseSuspendCount; }

    void expand();
    void collapse();

    /// The window reported that the pointer entered or left the input area.
    void pointerEntered();
    void pointerLeft();
    /// The pointer rests in the input area, outside the window.
    void pointerRested();

    /// Opens, and closes after `hold` unless the pointer keeps it open.
    void beginSessionFlash(Seconds hold);

    /// Keeps the capsule open while the user works in a menu or editor. Calls nest.
    void pushCollapseSuspend();
    /// Ends one suspension; extra calls have no effect. The last one lets the capsule close soon.
    void popCollapseSuspend();

    /// Cancels everything scheduled. An open capsule stays open.
    void cancel();

private:
    void scheduleCollapse(Seconds delay);
    void collapseUnlessPointerInside();
    void watchPointer();

    Environment m_env;
    bool m_isExpanded = false;
    int m_collapseSuspendCount = 0;
    bool m_isHovered = false; ///< as last reported by the window
    TimerHandle m_collapseWork;
    TimerHandle m_flashWork;
    TimerHandle m_watch; ///< runs while the pointer keeps it open outside the window
};

} // namespace vantle
