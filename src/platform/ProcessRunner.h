// Running other programs.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace vantle {

/// A program by its absolute path, and what it is to be told. No shell takes part: each argument
/// reaches it as it stands.
struct Command {
    QString program;
    QStringList arguments;
    friend bool operator==(const Command&, const Command&) = default;
};

/// Main thread. Nothing here waits for a program that was started, none becomes a zombie, and none
/// reads from or writes to this program's own standard streams.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;

    struct Output {
        int exitStatus = 0;
        QByteArray standardOutput;
    };
    /// Runs the command and hands over what it printed when it has ended. Empty when it could not
    /// be started, when a signal ended it, or when it printed more than kMaxOutput, for which it is
    /// ended. `done` is called from the event loop, or never when this object goes first; the
    /// command is ended then.
    virtual void collect(const Command& command,
                         std::function<void(std::optional<Output>)> done) = 0;

    /// Most bytes that a collected command may print.
    static constexpr qint64 kMaxOutput = 1 << 20;

    /// Starts the command and walks away: it outlives this program, and what it prints is lost.
    /// Whether it could be started.
    virtual bool startDetached(const Command& command) = 0;
};

} // namespace vantle
