// Several sources of the application in front, of which the first that can tell is asked.
#pragma once

#include "platform/FrontmostApp.h"

#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// Which one that is may change while the program runs: services of a desktop come and go. The
/// order is that of the vector. What is told is a change of application or of coverage, whichever
/// source brings it. Main thread.
class FirstFrontmostApp final : public FrontmostApp {
    Q_OBJECT

public:
    explicit FirstFrontmostApp(std::vector<std::unique_ptr<FrontmostApp>> sources);

    [[nodiscard]] std::optional<Application> frontmost() override;
    [[nodiscard]] AppCoverage coverage() const override;
    /// That of the first source that has any, while not all applications are told.
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
