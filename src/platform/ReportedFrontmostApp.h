// The application in front, where the desktop reports each switch.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"

#include <functional>
#include <optional>

namespace vantle {

/// What the sources share that get reports, in whatever way they get them.
///
/// "None" is reported at some switches for a moment, and while a panel of ours has the keyboard,
/// which the desktop counts as no window: it is believed once it has lasted `noneIsBelievedAfter`
/// without a panel. Only a change of application is told, not one of windows. Main thread.
class ReportedFrontmostApp : public FrontmostApp {
    Q_OBJECT

public:
    static constexpr Seconds noneIsBelievedAfter{0.2};

    struct Reading {
        Scheduler& scheduler; ///< must outlive the source
        IdentityResolver resolve;
        std::function<bool()> oursHasTheKeyboard;
    };

    [[nodiscard]] std::optional<Application> frontmost() final { return m_application; }
    /// All while the desktop reports, else none.
    [[nodiscard]] AppCoverage coverage() const final { return m_coverage; }

protected:
    explicit ReportedFrontmostApp(Reading reading);

    /// The desktop reports from now on.
    void begin();
    /// It reports no more: nothing is in front.
    void end();
    /// A window of that kind has the keyboard.
    void report(const WindowHints& hints);
    void reportNone();

private:
    void adopt(std::optional<Application> application);

    const Reading m_reading;
    AppCoverage m_coverage = AppCoverage::None;
    std::optional<Application> m_application;
    TimerHandle m_none; ///< while "none" is not believed yet
};

} // namespace vantle
