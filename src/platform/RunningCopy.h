// How the copies of the program that the user starts reach each other.
#pragma once

namespace vantle {

/// Main thread.
class RunningCopy {
public:
    virtual ~RunningCopy() = default;

    /// Answers other copies and the desktop from now on. Only the copy that holds the data does.
    virtual void listen() = 0;

    /// For a copy that does not hold the data: asks the one that does to show itself. Waits for
    /// its answer, two seconds at most. Returns whether there was one.
    [[nodiscard]] virtual bool show() = 0;
};

} // namespace vantle
