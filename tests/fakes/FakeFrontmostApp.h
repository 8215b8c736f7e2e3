// The application in front, set by the test.
#pragma once

#include "platform/FrontmostApp.h"

#include <utility>

namespace vantle::fakes {

class FakeFrontmostApp final : public FrontmostApp {
public:
    [[nodiscard]] std::optional<Application> frontmost() override { return application; }
    [[nodiscard]] AppCoverage coverage() const override { return m_coverage; }

    /// Brings `app` to the front and emits the signal, also when it is there already.
    void activate(const std::optional<Application>& app) {
        application = app;
        Q_EMIT activated(app);
    }

    /// Sets the coverage. With None nothing is in front.
    void setCoverage(AppCoverage coverage) {
        if (std::exchange(m_coverage, coverage) != coverage) Q_EMIT coverageChanged();
        if (coverage == AppCoverage::None && application) activate(std::nullopt);
    }

    [[nodiscard]] FrontmostHelp help() const override { return m_help; }
    void acceptHelp() override { ++accepted; }
    void setHelp(FrontmostHelp help) {
        if (std::exchange(m_help, help) != help) Q_EMIT helpChanged();
    }
    int accepted = 0; ///< how often the user accepted the help

    /// In front now; setting it emits no signal.
    std::optional<Application> application;

private:
    AppCoverage m_coverage = AppCoverage::All;
    FrontmostHelp m_help = FrontmostHelp::None;
};

} // namespace vantle::fakes
