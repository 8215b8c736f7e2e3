// The system-wide shortcut, as the desktop offers it.
#pragma once

#include <functional>

namespace vantle {

/// Grabs the one fixed combination, Alt+Super+B. Main thread throughout, the handler included.
class HotKeyPort {
public:
    virtual ~HotKeyPort() = default;

    /// Makes presses reach `pressed`. 0 on success, else the platform's status; then there is no
    /// way of hearing keys at all. A press that is held down reaches `pressed` once.
    [[nodiscard]] virtual int installHandler(std::function<void()> pressed) = 0;
    virtual void removeHandler() = 0;

    enum class Registration { Registered, HeldByAnother, Failed };
    struct Outcome {
        Registration registration = Registration::Failed;
        int status = 0; ///< the platform's status when Failed
        friend bool operator==(const Outcome&, const Outcome&) = default;
    };

    /// Takes the combination, in every state of the lock keys or not at all.
    [[nodiscard]] virtual Outcome registerKey() = 0;
    virtual void unregisterKey() = 0;

    /// Called when a combination that `registerKey` took is lost, as by a change of the keyboard
    /// map, and when it is held again; never from within a call of this port. After a loss the
    /// port tries again by itself, until `unregisterKey`. Set by the owner; may be empty.
    std::function<void(const Outcome&)> onOutcomeChanged;

    /// False where presses may not arrive while another application has the keyboard, although the
    /// combination is taken. Does not change while the program runs.
    [[nodiscard]] virtual bool hearsEveryApp() const { return true; }
};

} // namespace vantle
