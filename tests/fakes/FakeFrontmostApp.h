// An application in front, as the test says.
#pragma once

#include "platform/FrontmostApp.h"

#include <utility>

namespace vantle::fakes {

class FakeFrontmostApp final : public FrontmostApp {
public:
    [[nodiscard]] std::optional<Application> frontmost() override { return application; }
    [[nodiscard]] AppCoverage coverage() const override { return m_coverage; }

    /// Brings `app` to the front and tells it, also when it is in front already.
    void activate(const std::optional<Application>& app) {
        application = app;
        Q_EMIT activated(app);
    }

    /// The desktop tells about these applications from now on. Of none, nothing is in front.
    void setCoverage(AppCoverage coverage) {
        if (std::exchange(m_coverage, coverage) != coverage) Q_EMIT coverageChanged();
        if (coverage == AppCoverage::None && application) activate(std::nullopt);
    }

    [[nodiscard]] FrontmostHelp help() const override { return m_help; }
    void acceptHelp() override { ++accepted; }
    void setHelp(FrontmostHelp help) {
        if (std::exchange(m_help, help) != help) Q_EMIT helpChanged();
    }
    int accepted = 0; ///< how often the user took the help

    /// In front now. Emits no signal.
    std::optional<Application> application;

private:
    AppCoverage m_coverage = AppCoverage::All;
    FrontmostHelp m_help = FrontmostHelp::None;
};

} // namespace vantle::fakes
