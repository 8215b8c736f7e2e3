// The application in front, from a desktop that reports each switch.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"

#include <functional>
#include <optional>

namespace vantle {

/// The base of sources that receive reports.
///
/// Desktops briefly report "none" at some switches, and while a panel of the program has the
/// keyboard. It counts once it has lasted `noneIsBelievedAfter` without a panel. Reports changes of
/// application, not of windows. Main thread.
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
    /// All while the desktop reports, else None.
    [[nodiscard]] AppCoverage coverage() const final { return m_coverage; }

protected:
    explicit ReportedFrontmostApp(Reading reading);

    /// Reports begin.
    void begin();
    /// Reports end: no application is in front.
    void end();
    /// A window with these hints has the keyboard.
    void report(const WindowHints& hints);
    void reportNone();

private:
    void adopt(std::optional<Application> application);

    const Reading m_reading;
    AppCoverage m_coverage = AppCoverage::None;
    std::optional<Application> m_application;
    TimerHandle m_none; ///< runs while "none" does not count yet
};

} // namespace vantle
