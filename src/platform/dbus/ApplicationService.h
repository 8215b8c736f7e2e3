// The program's name on the session bus, and what others may ask of it there.
#pragma once

#include <QDBusConnection>
#include <QObject>

namespace vantle {

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
    enum class Outcome {
        Serving,
        NameTaken, ///< another copy runs
        NoBus,     ///< no session bus, or one that does not answer: nobody can reach us
    };

    explicit ApplicationService(const QDBusConnection& session);
    /// Gives the name back.
    ~ApplicationService() override;

    /// Takes the name, without waiting for one who has it. One round trip to the bus, two seconds
    /// at the most.
    [[nodiscard]] Outcome start();

Q_SIGNALS:
    /// Somebody wants to see the program, with files or without.
    void activated();
    void actionActivated(const QString& name);

private:
    QDBusConnection m_session;
    bool m_serving = false;
};

} // namespace vantle
