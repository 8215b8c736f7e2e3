// Programs started as child processes.
#pragma once

#include "platform/ProcessRunner.h"

#include <QObject>
#include <QProcessEnvironment>

namespace vantle {

/// Detached ones are started by a child that ends at once, so that the system looks after them.
/// Programs get the environment that the user's session gave this program, without the variables
/// that this program has set for itself since.
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
