// The first of several sources of the frontmost application that works.
#pragma once

#include "platform/FrontmostApp.h"

#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// The working source can change, as services of a desktop come and go. Precedence is the vector's
/// order. Reports a change of application or of coverage whichever source causes it. Main thread.
class FirstFrontmostApp final : public FrontmostApp {
    Q_OBJECT

public:
    explicit FirstFrontmostApp(std::vector<std::unique_ptr<FrontmostApp>> sources);

    [[nodiscard]] std::optional<Application> frontmost() override;
    [[nodiscard]] AppCoverage coverage() const override;
    /// Returns the first source's help offer, unless all applications are covered.
    [[nodiscard]] FrontmostHelp help() const override;
    void acceptHelp() override;

private:
    [[nodiscard]] FrontmostApp* first() const;
    [[nodiscard]] FrontmostApp* helper() const;
    void refresh();

    std::vector<std::unique_ptr<FrontmostApp>> m_sources;
    std::optional<Application> m_told;
    AppCoverage m_coverage;
    FrontmostHelp m_help;
};

} // namespace vantle
