// Programs started as child processes.
#pragma once

#include "platform/ProcessRunner.h"

#include <QObject>
#include <QProcessEnvironment>

namespace vantle {

/// A child process that exits immediately starts detached programs, so that init reaps them.
/// Programs get the session's environment without the variables that this program set for itself.
/// Main thread.
class PosixProcessRunner final : public ProcessRunner {
public:
    explicit PosixProcessRunner(const QProcessEnvironment& environment)
        : m_environment(environment) {}
    ~PosixProcessRunner() override;

    void collect(const Command& command, std::function<void(std::optional<Output>)> done) override;
    bool startDetached(const Command& command) override;

private:
    const QProcessEnvironment m_environment;
    QObject m_processes; ///< owns those that run
};

} // namespace vantle
