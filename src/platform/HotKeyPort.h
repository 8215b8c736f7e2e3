// The port of the system-wide shortcut.
#pragma once

#include <QString>

#include <functional>

namespace vantle {

/// Registers one fixed combination, Alt+Super+B. Main thread, the handler included.
class HotKeyPort {
public:
    virtual ~HotKeyPort() = default;

    /// Sends presses to `pressed`. Returns 0, or the platform's status when keys cannot be received
    /// at all. A held key calls `pressed` once.
    [[nodiscard]] virtual int installHandler(std::function<void()> pressed) = 0;
    virtual void removeHandler() = 0;

    enum class Registration {
        Registered,
        HeldByAnother,
        Failed,
        Waiting,     ///< asked; no answer yet
        NotAllowed,  ///< available once the user allows it: `allow`
        KeysRemoved, ///< the user removed the keys in the desktop's settings
        NotOffered,  ///< this desktop offers no shortcuts, at least for now
    };
    struct Outcome {
        Registration registration = Registration::Failed;
        int status = 0; ///< the platform's status when Failed
        /// The keys as text for the user, where the desktop's settings have other ones; empty
        /// otherwise.
        QString keys = {};
        friend bool operator==(const Outcome&, const Outcome&) = default;
    };

    /// Registers the combination for every state of the lock keys, or not at all. HeldByAnother and
    /// Failed end the attempt; otherwise the port follows the desktop until `unregisterKey`. Keeps
    /// keys that the user chose in the desktop's settings.
    [[nodiscard]] virtual Outcome registerKey() = 0;
    virtual void unregisterKey() = 0;

    /// The way in use, if it needs the user's consent because the desktop asks the user or its
    /// settings are written; empty otherwise. May change together with the outcome.
    [[nodiscard]] virtual QString wayToAllow() const { return {}; }
    /// Restores the way that the user allowed in an earlier run; empty for none. Call before
    /// `registerKey`, which then needs no new consent.
    virtual void recallAllowed(const QString& way) { (void)way; }
    /// The user allows `wayToAllow`, or withdraws it and everything it left. Requires a non-empty
    /// way and a call of `registerKey` before. Returns like `registerKey`; the outcome NotAllowed
    /// ends an allowance.
    [[nodiscard]] virtual Outcome allow(bool allowed) {
        (void)allowed;
        return {};
    }

    /// Called with the pending answer to `registerKey`, when a combination is lost (such as by a
    /// change of the keyboard map), and when it is held again; never from inside a call of this
    /// port. After a loss the port retries until `unregisterKey`. Set by the owner; may be empty.
    std::function<void(const Outcome&)> onOutcomeChanged;
};

} // namespace vantle
