// The session's status as other programs would read it.
#pragma once

#include "platform/SessionStatus.h"

#include <utility>

namespace vantle::fakes {

class FakeSessionStatus final : public SessionStatus {
public:
    void publish(Read toRead) override { read = std::move(toRead); }
    void noteChange() override { ++changes; }

    Read read;
    int changes = 0;
};

} // namespace vantle::fakes
