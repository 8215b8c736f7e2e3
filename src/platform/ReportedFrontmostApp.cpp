#include "platform/ReportedFrontmostApp.h"

#include <utility>

namespace vantle {

ReportedFrontmostApp::ReportedFrontmostApp(Reading reading) : m_reading(std::move(reading)) {}

void ReportedFrontmostApp::begin() {
    if (std::exchange(m_coverage, AppCoverage::All) != AppCoverage::All) Q_EMIT coverageChanged();
}

void ReportedFrontmostApp::end() {
    if (m_coverage == AppCoverage::None) return;
    m_coverage = AppCoverage::None;
    m_none.reset();
    adopt(std::nullopt);
    Q_EMIT coverageChanged();
}

void ReportedFrontmostApp::report(const WindowHints& hints) {
    m_none.reset();
    adopt(isOurs(hints) ? ourselves() : m_reading.resolve(hints));
}

void ReportedFrontmostApp::reportNone() {
    if (!m_application || m_none) return;
    m_none = m_reading.scheduler.scheduleOnce(noneIsBelievedAfter, [this] {
        m_none.reset();
        if (m_reading.oursHasTheKeyboard())
            reportNone();
        else
            adopt(std::nullopt);
    });
}

void ReportedFrontmostApp::adopt(std::optional<Application> application) {
    const auto former = std::exchange(m_application, std::move(application));
    if (!sameApplication(former, m_application)) Q_EMIT activated(m_application);
}

} // namespace vantle
