// The port between copies of the program.
#pragma once

namespace vantle {

/// Main thread.
class RunningCopy {
public:
    virtual ~RunningCopy() = default;

    /// Answers other copies and the desktop from now on. For the copy that holds the data.
    virtual void listen() = 0;

    /// For a copy without the data: asks the other one to show itself. Blocks for at most two
    /// seconds. Returns whether it answered.
    [[nodiscard]] virtual bool show() = 0;
};

} // namespace vantle
