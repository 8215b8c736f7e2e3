// The port of running other programs.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace vantle {

/// An absolute path and its arguments. No shell: arguments are passed unchanged.
struct Command {
    QString program;
    QStringList arguments;
    friend bool operator==(const Command&, const Command&) = default;
};

/// Main thread. No call waits for the program, none leaves a zombie, and none shares this program's
/// standard streams.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;

    struct Output {
        int exitStatus = 0;
        QByteArray standardOutput;
    };
    /// Runs the command and passes on its output at its end. Empty when it could not start, was
    /// ended by a signal, or printed more than kMaxOutput, for which it is killed. Calls `done`
    /// from the event loop. Destroying this object kills the command without a call.
    virtual void collect(const Command& command,
                         std::function<void(std::optional<Output>)> done) = 0;

    /// The largest output of a collected command, in bytes.
    static constexpr qint64 kMaxOutput = 1 << 20;

    /// Starts the command detached: it outlives this program, its output is discarded. Returns
    /// whether it started.
    virtual bool startDetached(const Command& command) = 0;
};

} // namespace vantle
