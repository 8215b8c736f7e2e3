// The system-wide shortcut, as the desktop offers it.
#pragma once

#include <QString>

#include <functional>

namespace vantle {

/// Takes the one fixed combination, Alt+Super+B. Main thread throughout, the handler included.
class HotKeyPort {
public:
    virtual ~HotKeyPort() = default;

    /// Makes presses reach `pressed`. 0 on success, else the platform's status; then there is no
    /// way of hearing keys at all. A press that is held down reaches `pressed` once.
    [[nodiscard]] virtual int installHandler(std::function<void()> pressed) = 0;
    virtual void removeHandler() = 0;

    enum class Registration {
        Registered,
        HeldByAnother,
        Failed,
        Waiting,     ///< the desktop has been asked and has not answered yet
        NotAllowed,  ///< it can be had, once the user has allowed it: `allow`
        KeysRemoved, ///< the user left the shortcut without keys in the desktop's own settings
        NotOffered,  ///< this desktop gives no keys to programs, at least for now
    };
    struct Outcome {
        Registration registration = Registration::Failed;
        int status = 0; ///< the platform's status when Failed
        /// As the user reads them, where the desktop's settings have other keys than the fixed
        /// combination; empty otherwise.
        QString keys = {};
        friend bool operator==(const Outcome&, const Outcome&) = default;
    };

    /// Takes the combination, in every state of the lock keys or not at all. HeldByAnother and
    /// Failed are the end of the attempt; after any other answer the port follows the desktop until
    /// `unregisterKey`. The user's own choice of keys in the desktop's settings is kept.
    [[nodiscard]] virtual Outcome registerKey() = 0;
    virtual void unregisterKey() = 0;

    /// The way to the combination that is in use, where it takes the user's word, since the desktop
    /// asks the user or is written to; empty elsewhere. May change whenever the outcome does.
    [[nodiscard]] virtual QString wayToAllow() const { return {}; }
    /// Which way the user allowed in a former run; empty for none. Before `registerKey`, which then
    /// takes that way without a word.
    virtual void recallAllowed(const QString& way) { (void)way; }
    /// The user allows `wayToAllow`, or switches it off, which leaves nothing of it. Requires that
    /// it is not empty, and that the key is registered, whatever came of that. Answers as
    /// `registerKey`. An outcome of NotAllowed is the end of an allowance.
    [[nodiscard]] virtual Outcome allow(bool allowed) {
        (void)allowed;
        return {};
    }

    /// Called with the answer that `registerKey` left open, when a combination is lost, as by a
    /// change of the keyboard map, and when it is held again; never from within a call of this
    /// port. After a loss the port tries again by itself, until `unregisterKey`. Set by the owner;
    /// may be empty.
    std::function<void(const Outcome&)> onOutcomeChanged;
};

} // namespace vantle
