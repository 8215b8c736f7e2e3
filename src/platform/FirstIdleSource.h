// Several idle sources, of which the first that can tell is asked.
#pragma once

#include "platform/IdleSource.h"

#include <memory>
#include <vector>

namespace vantle {

/// Which one that is may change while the program runs: services of a desktop come and go. The
/// order is that of the vector. Main thread.
class FirstIdleSource final : public IdleSource {
public:
    explicit FirstIdleSource(std::vector<std::unique_ptr<IdleSource>> sources);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override;

private:
    std::vector<std::unique_ptr<IdleSource>> m_sources;
    bool m_could = false;
};

} // namespace vantle
