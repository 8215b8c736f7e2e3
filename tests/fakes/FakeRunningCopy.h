// The running copy of the program, set by the test.
#pragma once

#include "platform/RunningCopy.h"

namespace vantle::fakes {

class FakeRunningCopy final : public RunningCopy {
public:
    void listen() override { isListening = true; }
    [[nodiscard]] bool show() override {
        ++calls;
        return answers;
    }

    bool isListening = false;
    int calls = 0; ///< of show()
    bool answers = false;
};

} // namespace vantle::fakes
