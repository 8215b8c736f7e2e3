#include "platform/FirstFrontmostApp.h"

#include <algorithm>
#include <utility>

namespace vantle {

FirstFrontmostApp::FirstFrontmostApp(std::vector<std::unique_ptr<FrontmostApp>> sources)
    : m_sources(std::move(sources))
    , m_told(frontmost())
    , m_coverage(coverage())
    , m_help(help()) {
    for (const auto& source : m_sources) {
        connect(source.get(), &FrontmostApp::activated, this, &FirstFrontmostApp::refresh);
        connect(source.get(), &FrontmostApp::coverageChanged, this, &FirstFrontmostApp::refresh);
        connect(source.get(), &FrontmostApp::helpChanged, this, &FirstFrontmostApp::refresh);
    }
}

FrontmostApp* FirstFrontmostApp::first() const {
    const auto found = std::ranges::find_if(
        m_sources, [](const auto& source) { return source->coverage() != AppCoverage::None; });
    return found == m_sources.end() ? nullptr : found->get();
}

std::optional<Application> FirstFrontmostApp::frontmost() {
    FrontmostApp* const source = first();
    return source == nullptr ? std::nullopt : source->frontmost();
}

AppCoverage FirstFrontmostApp::coverage() const {
    const FrontmostApp* const source = first();
    return source == nullptr ? AppCoverage::None : source->coverage();
}

FrontmostApp* FirstFrontmostApp::helper() const {
    if (coverage() == AppCoverage::All) return nullptr;
    const auto found = std::ranges::find_if(
        m_sources, [](const auto& source) { return source->help() != FrontmostHelp::None; });
    return found == m_sources.end() ? nullptr : found->get();
}

FrontmostHelp FirstFrontmostApp::help() const {
    const FrontmostApp* const source = helper();
    return source == nullptr ? FrontmostHelp::None : source->help();
}

void FirstFrontmostApp::acceptHelp() {
    if (FrontmostApp* const source = helper()) source->acceptHelp();
}

void FirstFrontmostApp::refresh() {
    const auto former = std::exchange(m_told, frontmost());
    if (!sameApplication(former, m_told)) Q_EMIT activated(m_told);
    if (std::exchange(m_coverage, coverage()) != coverage()) Q_EMIT coverageChanged();
    if (std::exchange(m_help, help()) != help()) Q_EMIT helpChanged();
}

} // namespace vantle
