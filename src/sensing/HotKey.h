// The one system-wide shortcut, ⌥⌘B, which starts and stops a session from any application.
#pragma once

#include "base/Scheduler.h"
#include "platform/HotKeyPort.h"
#include "platform/Preferences.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace vantle {

/// Holds the combination while registered. A failure is told in `registrationError`, in the
/// user's words, and nowhere else; that the desktop gives no keys, or none yet, is no failure. A
/// registration that failed at once is not tried again by itself; in all other cases the port
/// follows the desktop, and takes a lost combination again when it can. Main thread.
class HotKey final : public QObject {
    Q_OBJECT
    /// The shortcut is active.
    Q_PROPERTY(bool isRegistered READ isRegistered NOTIFY isRegisteredChanged FINAL)
    /// Why it could not be taken; empty when the last attempt went well or none was made.
    Q_PROPERTY(
        QString registrationError READ registrationErrorText NOTIFY registrationErrorChanged FINAL)

public:
    /// All of it must outlive the hot key.
    HotKey(HotKeyPort& port, Scheduler& scheduler, Preferences& preferences);
    ~HotKey() override;

    /// Takes the combination. Nothing when it is held already. After a failure nothing is held, so
    /// that a later call starts clean.
    void registerHotKey();

    /// Gives the combination back. `registrationError` stays as it is.
    void unregisterHotKey();

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }
    [[nodiscard]] const std::optional<QString>& registrationError() const {
        return m_registrationError;
    }
    /// Whether the desktop gives the combination on the user's word alone.
    [[nodiscard]] bool takesAllowance() const { return !m_port.wayToAllow().isEmpty(); }
    /// The user gives that word, which is remembered for later runs, or takes it back. Nothing
    /// where it is not taken.
    void allow(bool allowed);

    /// How things stand with the desktop; Failed before the first attempt.
    [[nodiscard]] HotKeyPort::Registration registration() const { return m_outcome.registration; }
    /// The keys that were really taken, as the user reads them; empty where they are ⌥⌘B.
    [[nodiscard]] const QString& keys() const { return m_outcome.keys; }

    /// Called at each press, after the platform's own handler has returned. Set once by the owner,
    /// which it must hold weakly.
    std::function<void()> onPressed;

Q_SIGNALS:
    void isRegisteredChanged();
    void registrationErrorChanged();
    void outcomeChanged(); ///< `registration` or `keys`

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
    bool m_portHolds = false; ///< the handler, and the key unless it was lost or is to come
    HotKeyPort::Outcome m_outcome;
    bool m_isRegistered = false;
    std::optional<QString> m_registrationError;
};

} // namespace vantle
