// The sources of a desktop that tells nothing of its user.
#pragma once

#include "platform/FrontmostApp.h"
#include "platform/IdleSource.h"

namespace vantle {

/// No application is in front, as far as can be told.
class NoFrontmostApp final : public FrontmostApp {
public:
    [[nodiscard]] std::optional<Application> frontmost() override { return std::nullopt; }
    [[nodiscard]] AppCoverage coverage() const override { return AppCoverage::None; }
};

class NoIdleSource final : public IdleSource {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastInput() override { return std::nullopt; }
    [[nodiscard]] bool canTell() const override { return false; }
};

} // namespace vantle
