// Programs started as child processes.
#pragma once

#include "platform/ProcessRunner.h"

#include <QObject>

namespace vantle {

/// Detached ones are started by a child that ends at once, so that the system looks after them.
class PosixProcessRunner final : public ProcessRunner {
public:
    PosixProcessRunner() = default;
    ~PosixProcessRunner() override;

    void collect(const Command& command, std::function<void(std::optional<Output>)> done) override;
    bool startDetached(const Command& command) override;

private:
    QObject m_processes; ///< owns those that run
};

} // namespace vantle
