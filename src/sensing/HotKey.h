// The one system-wide shortcut, ⌥⌘B, which starts and stops a session from any application.
#pragma once

#include "base/Scheduler.h"
#include "platform/HotKeyPort.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace vantle {

/// Holds the combination while registered. A failure is told in `registrationError`, in the
/// person's words, and nowhere else. A registration that failed is not tried again by itself; a
/// combination that was taken and is lost, the port takes again when it can. Main thread.
class HotKey final : public QObject {
    Q_OBJECT
    /// The shortcut is active.
    Q_PROPERTY(bool isRegistered READ isRegistered NOTIFY isRegisteredChanged FINAL)
    /// Why it could not be taken; empty when the last attempt went well or none was made.
    Q_PROPERTY(
        QString registrationError READ registrationErrorText NOTIFY registrationErrorChanged FINAL)

public:
    /// Both must outlive the hot key.
    HotKey(HotKeyPort& port, Scheduler& scheduler);
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
    /// Whether it works over every application while it is active.
    [[nodiscard]] bool hearsEveryApp() const { return m_port.hearsEveryApp(); }

    /// Called at each press, after the platform's own handler has returned. Set once by the owner,
    /// which it must hold weakly.
    std::function<void()> onPressed;

Q_SIGNALS:
    void isRegisteredChanged();
    void registrationErrorChanged();

private:
    void adopt(const HotKeyPort::Outcome& outcome);
    void deliverPressLater();
    void release();
    void setRegistered(bool registered);
    void setRegistrationError(std::optional<QString> text);
    [[nodiscard]] QString registrationErrorText() const {
        return m_registrationError.value_or(QString());
    }

    HotKeyPort& m_port;
    Scheduler& m_scheduler;
    bool m_portHolds = false; ///< the handler, and the key unless it was lost
    bool m_isRegistered = false;
    std::optional<QString> m_registrationError;
};

} // namespace vantle
