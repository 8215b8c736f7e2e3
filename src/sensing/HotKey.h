// The system-wide shortcut ⌥⌘B, which starts and stops sessions.
#pragma once

#include "base/Scheduler.h"
#include "platform/HotKeyPort.h"
#include "platform/Preferences.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace vantle {

/// Holds the combination while registered. A failure shows in `registrationError` alone, as text
/// for the user; a desktop without shortcuts, or without one yet, is no failure. A registration
/// that failed immediately is not retried; otherwise the port follows the desktop and registers a
/// lost combination again when it can. Main thread.
class HotKey final : public QObject {
    Q_OBJECT
    /// Whether the combination is registered.
    Q_PROPERTY(bool isRegistered READ isRegistered NOTIFY isRegisteredChanged FINAL)
    /// Why the last registration failed; empty when it did not, or none was tried.
    Q_PROPERTY(
        QString registrationError READ registrationErrorText NOTIFY registrationErrorChanged FINAL)

public:
    /// All of it must outlive the hot key.
    HotKey(HotKeyPort& port, Scheduler& scheduler, Preferences& preferences);
    ~HotKey() override;

    /// Registers the combination. Has no effect when it is registered already. After a failure
    /// nothing is held, so that a later call starts clean.
    void registerHotKey();

    /// Releases the combination. `registrationError` is kept.
    void unregisterHotKey();

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }
    [[nodiscard]] const std::optional<QString>& registrationError() const {
        return m_registrationError;
    }
    /// Whether the desktop registers the combination only with the user's consent.
    [[nodiscard]] bool takesAllowance() const { return !m_port.wayToAllow().isEmpty(); }
    /// Gives or withdraws that consent, and stores it for later runs. Has no effect on a desktop
    /// that asks for none.
    void allow(bool allowed);

    /// The state of the registration; Failed before the first attempt.
    [[nodiscard]] HotKeyPort::Registration registration() const { return m_outcome.registration; }
    /// The combination that the desktop chose, as text for the user; empty when it is ⌥⌘B.
    [[nodiscard]] const QString& keys() const { return m_outcome.keys; }

    /// Called for each press, after the platform's handler has returned. Set once by the owner,
    /// which it must hold weakly.
    std::function<void()> onPressed;

Q_SIGNALS:
    void isRegisteredChanged();
    void registrationErrorChanged();
    void outcomeChanged(); ///< emitted when `registration` or `keys` changed

private:
    void adopt(const HotKeyPort::Outcome& outcome);
    void forgetAllowance();
    void deliverPressLater();
    void release();
    void setRegistered(bool registered);
    void setRegistrationError(std::optional<QString> text);
    [[nodiscard]] QString registrationErrorText() const {
        return m_registrationError.value_or(QString());
    }

    HotKeyPort& m_port;
    Scheduler& m_scheduler;
    Preferences& m_preferences;
    /// Whether the port holds the handler, and the combination unless it was lost or is pending.
    bool m_portHolds = false;
    HotKeyPort::Outcome m_outcome;
    bool m_isRegistered = false;
    std::optional<QString> m_registrationError;
};

} // namespace vantle
