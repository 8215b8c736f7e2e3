// Alt+Super+B, heard from any application.
#pragma once

#include "base/Scheduler.h"
#include "platform/HotKeyPort.h"
#include "platform/x11/KeyRepeatFilter.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeyCombination.h"

#include <memory>
#include <optional>

namespace vantle {

/// Grabs the combination on the root window. A change of the keyboard map grabs it anew at its new
/// place. Where that fails it is tried again at the next change and every ten seconds, since no
/// server tells when another program gives a key back.
///
/// While another program holds the whole keyboard, an open menu or a screen locker, presses don't
/// reach us. Not for a server beside a Wayland compositor, where only X11 windows have their keys
/// heard.
class X11HotKey final : public HotKeyPort {
public:
    /// Statuses beside the codes of X errors.
    static constexpr int kNoConnection = X11Connection::kBroken;
    static constexpr int kNoSuchKey = -2; ///< the keyboard map has no Alt or no Super

    /// Both must outlive this.
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
    bool m_registered = false;                        ///< wanted, if not held since the map changed
    std::optional<X11KeyCombination> m_grabbed;       ///< while held
    Outcome m_outcome;                                ///< as told last
    TimerHandle m_retry;                              ///< while registered and not held
    KeyRepeatFilter m_repeats;
    X11Connection::Subscription m_presses, m_releases, m_mappings;
};

} // namespace vantle
