// The program's bus name and its actions.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace vantle {

class Scheduler;

/// Implements org.freedesktop.Application for the desktop, for a second start of the program, and
/// for key bindings of the user:
///
///     gdbus call --session --dest local.vantle.Vantle --object-path /local/vantle/Vantle
///         --method org.freedesktop.Application.ActivateAction toggle '[]' '{}'
///
/// Callers get their reply before the signals below are emitted. Main thread.
class ApplicationService final : public QObject {
    Q_OBJECT

public:
    enum class State {
        Stopped,
        Asking, ///< no reply yet
        Serving,
        NameTaken, ///< another copy runs
        NoBus,     ///< no session bus
    };

    explicit ApplicationService(const QDBusConnection& session);
    /// Releases the name.
    ~ApplicationService() override;

    /// Requests the name without waiting. Has no effect while it is requested or owned.
    void start();

    /// For a copy that finds the data locked: asks the running copy to show itself and waits for
    /// its reply for at most two seconds, also while that copy has no name yet because it is
    /// starting. Does not start one. Returns whether it replied. Runs an event loop.
    [[nodiscard]] static bool showRunningCopy(const QDBusConnection& session, Scheduler& scheduler);

    [[nodiscard]] State state() const { return m_state; }

Q_SIGNALS:
    /// A request to show the program, with or without files.
    void activated();
    void actionActivated(const QString& name);

private:
    void take(const QDBusMessage& answer);

    QDBusConnection m_session;
    State m_state = State::Stopped;
};

} // namespace vantle
