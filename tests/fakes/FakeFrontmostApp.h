// An application in front, as the test says.
#pragma once

#include "platform/FrontmostApp.h"

namespace vantle::fakes {

class FakeFrontmostApp final : public FrontmostApp {
public:
    [[nodiscard]] std::optional<Application> frontmost() override { return application; }

    /// Brings `app` to the front and tells it, also when it is in front already.
    void activate(const std::optional<Application>& app) {
        application = app;
        Q_EMIT activated(app);
    }

    /// In front now. A change by this way is told to nobody.
    std::optional<Application> application;
};

} // namespace vantle::fakes
