#include "platform/posix/PosixProcessRunner.h"

#include <QProcess>

#include <memory>

namespace vantle {

namespace {

/// One collected command. Deletes itself after it has reported its end.
class Collection final : public QProcess {
public:
    using Done = std::function<void(std::optional<ProcessRunner::Output>)>;

    Collection(QObject* owner, Done done) : QProcess(owner), m_done(std::move(done)) {
        setStandardInputFile(nullDevice());
        setStandardErrorFile(nullDevice());
        connect(this, &QProcess::readyReadStandardOutput, this, [this] { read(); });
        connect(this, &QProcess::finished, this, [this](int exitStatus, ExitStatus how) {
            read();
            if (how == NormalExit && !m_tooMuch)
                tell(ProcessRunner::Output{exitStatus, std::move(m_output)});
            else
                tell(std::nullopt);
        });
        // Queued, since it may fail inside the call that starts it.
        connect(
            this, &QProcess::errorOccurred, this,
            [this](ProcessError error) {
                if (error == FailedToStart) tell(std::nullopt);
            },
            Qt::QueuedConnection);
    }

private:
    void read() {
        const QByteArray more = readAllStandardOutput();
        if (m_tooMuch) return;
        m_output += more;
        if (m_output.size() <= ProcessRunner::kMaxOutput) return;
        m_tooMuch = true;
        m_output.clear();
        kill();
    }

    void tell(std::optional<ProcessRunner::Output> output) {
        deleteLater();
        const Done done = std::move(m_done);
        done(std::move(output)); // may end the runner, and this with it
    }

    Done m_done;
    QByteArray m_output;
    bool m_tooMuch = false;
};

} // namespace

PosixProcessRunner::~PosixProcessRunner() {
    for (QObject* child : m_processes.children()) {
        auto* const process = static_cast<QProcess*>(child);
        process->disconnect(); // no more callbacks
        process->kill();
        process->waitForFinished();
    }
}

void PosixProcessRunner::collect(const Command& command,
                                 std::function<void(std::optional<Output>)> done) {
    auto* const process = new Collection(&m_processes, std::move(done));
    process->setProcessEnvironment(m_environment);
    process->start(command.program, command.arguments, QIODevice::ReadOnly);
}

bool PosixProcessRunner::startDetached(const Command& command) {
    QProcess process;
    process.setProgram(command.program);
    process.setArguments(command.arguments);
    process.setProcessEnvironment(m_environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace vantle
