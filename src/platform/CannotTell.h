// The ports of a desktop that reports nothing about its user.
//
// Main thread.
#pragma once

#include "platform/FrontmostApp.h"
#include "platform/IdleSource.h"

namespace vantle {

/// Reports no application in front.
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
