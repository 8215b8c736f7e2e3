// The shortcut as a key grab on an X server.
#pragma once

#include "base/Scheduler.h"
#include "platform/HotKeyPort.h"
#include "platform/x11/KeyRepeatFilter.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeyCombination.h"

#include <memory>
#include <optional>

namespace vantle {

/// Grabs Alt+Super+B on the root window, and again after a change of the keyboard map. A failed
/// grab is retried at the next change and every ten seconds, since no event reports that another
/// program released a key.
///
/// While another program grabs the whole keyboard (an open menu, a screen locker), presses do not
/// arrive. Not for Xwayland, where only keys over X11 windows arrive. Main thread.
class X11HotKey final : public HotKeyPort {
public:
    /// Statuses beside X error codes.
    static constexpr int kNoConnection = X11Connection::kBroken;
    static constexpr int kNoSuchKey = -2; ///< the keyboard map lacks Alt or Super

    /// Both must outlive this object.
    X11HotKey(X11Connection& connection, Scheduler& scheduler);
    ~X11HotKey() override;

    [[nodiscard]] int installHandler(std::function<void()> pressed) override;
    void removeHandler() override;
    [[nodiscard]] Outcome registerKey() override;
    void unregisterKey() override;

private:
    void handlePress(const xcb_key_press_event_t& event);
    void handleRelease(const xcb_key_release_event_t& event);
    void handleMapping();
    void regrab();
    [[nodiscard]] Outcome grabAtItsPlace();
    [[nodiscard]] Outcome grab(const X11KeyCombination& combination);
    void ungrab();

    X11Connection& m_connection;
    Scheduler& m_scheduler;
    std::shared_ptr<std::function<void()>> m_pressed; ///< posted calls hold it weakly
    /// Wanted, even while a map change prevents it.
    bool m_registered = false;
    std::optional<X11KeyCombination> m_grabbed; ///< set while held
    Outcome m_outcome;                          ///< as reported last
    TimerHandle m_retry;                        ///< runs while wanted and not held
    KeyRepeatFilter m_repeats;
    X11Connection::Subscription m_presses, m_releases, m_mappings;
};

} // namespace vantle
