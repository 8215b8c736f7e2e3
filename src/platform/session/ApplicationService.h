// The program's name on the session bus, and what others may ask of it there.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace vantle {

class Scheduler;

/// Serves org.freedesktop.Application, so that the desktop, a second start of the program and keys
/// that the person binds to a command can reach the one that runs:
///
///     gdbus call --session --dest local.vantle.Vantle --object-path /local/vantle/Vantle
///         --method org.freedesktop.Application.ActivateAction toggle '[]' '{}'
///
/// Main thread. Callers have their answer before the signals below are emitted.
class ApplicationService final : public QObject {
    Q_OBJECT

public:
    enum class State {
        Stopped,
        Asking, ///< the bus has not answered yet
        Serving,
        NameTaken, ///< another copy runs
        NoBus,     ///< no session bus: nobody can reach the program
    };

    explicit ApplicationService(const QDBusConnection& session);
    /// Gives the name back.
    ~ApplicationService() override;

    /// Asks the bus for the name, and waits neither for its answer nor for another owner. Does
    /// nothing while it is asked for or held.
    void start();

    /// For a copy that finds the data taken: asks the one that runs to show itself, and waits for
    /// its answer, two seconds at the most, also for one that has no name yet because it has
    /// just been started. Starts none. Returns whether it answered. Runs an event loop.
    [[nodiscard]] static bool showRunningCopy(const QDBusConnection& session, Scheduler& scheduler);

    [[nodiscard]] State state() const { return m_state; }

Q_SIGNALS:
    /// Somebody wants to see the program, with files or without.
    void activated();
    void actionActivated(const QString& name);

private:
    void take(const QDBusMessage& answer);

    QDBusConnection m_session;
    State m_state = State::Stopped;
};

} // namespace vantle
