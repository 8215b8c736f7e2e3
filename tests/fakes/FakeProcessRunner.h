// A process runner without processes: the test sets output and end.
#pragma once

#include "platform/ProcessRunner.h"

#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace vantle::fakes {

class FakeProcessRunner final : public ProcessRunner {
public:
    void collect(const Command& command, std::function<void(std::optional<Output>)> done) override {
        collected.push_back(command);
        m_waiting.push_back(std::move(done));
    }
    bool startDetached(const Command& command) override {
        detached.push_back(command);
        if (onStart) onStart(command);
        return canStart;
    }

    /// Ends the oldest collected command.
    void end(std::optional<Output> output) {
        const auto done = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (output && output->standardOutput.size() > kMaxOutput) output.reset();
        done(std::move(output));
    }

    bool canStart = true;
    std::vector<Command> collected;
    std::vector<Command> detached;
    std::function<void(const Command&)> onStart; ///< a detached command starts

private:
    std::deque<std::function<void(std::optional<Output>)>> m_waiting;
};

} // namespace vantle::fakes
