// The first of several idle sources that works.
#pragma once

#include "platform/IdleSource.h"

#include <memory>
#include <vector>

namespace vantle {

/// The working source can change, as services of a desktop come and go. Precedence is the vector's
/// order. Main thread.
class FirstIdleSource final : public IdleSource {
public:
    explicit FirstIdleSource(std::vector<std::unique_ptr<IdleSource>> sources);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override;
    [[nodiscard]] std::optional<bool> isInhibited() const override;

private:
    /// The source that tells now; null without one.
    [[nodiscard]] IdleSource* first() const;

    std::vector<std::unique_ptr<IdleSource>> m_sources;
    bool m_could = false;
};

} // namespace vantle
