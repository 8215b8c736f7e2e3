// What auto mode does at each switch of applications. The bound of a switch is the same signal to
// a listener that does nothing; that of a suggestion, a walk over the letters of the name.
#include "Comparison.h"
#include "base/Clock.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/IdleSource.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/AutoSuggestion.h"
#include "tracking/AppPaths.h"
#include "tracking/SkillList.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <array>

namespace vantle::bench {
namespace {

constexpr int kSwitches = 1'000;

/// A desktop on which this measure alone changes windows.
class Desktop final : public FrontmostApp {
public:
    [[nodiscard]] std::optional<Application> frontmost() override { return m_front; }
    [[nodiscard]] AppCoverage coverage() const override { return AppCoverage::All; }
    void bring(const Application& app) {
        m_front = app;
        Q_EMIT activated(m_front);
    }

private:
    std::optional<Application> m_front;
};

/// A user who is always at the keyboard.
class Present final : public IdleSource {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastInput() override { return 0; }
    [[nodiscard]] bool canTell() const override { return true; }
};

/// Two known applications, a browser, and an unknown one.
const std::array<Application, 4>& applications() {
    static const std::array<Application, 4> all = {
        Application{QStringLiteral("com.apple.dt.Xcode"), QStringLiteral("Xcode")},
        Application{QStringLiteral("com.figma.Desktop"), QStringLiteral("Figma")},
        Application{QStringLiteral("com.apple.Safari"), QStringLiteral("Safari")},
        Application{QStringLiteral("org.example.viewer"), QStringLiteral("Viewer")}};
    return all;
}

void switchThrough(Desktop& desktop) {
    for (int i = 0; i < kSwitches; ++i)
        desktop.bring(applications()[static_cast<std::size_t>(i) % applications().size()]);
}

void activation(benchmark::State& state) {
    const QTemporaryDir directory(QStringLiteral("vantle-bench-XXXXXX"));
    PosixFileSystem files;
    const AppPaths paths(files, directory.path());
    const SystemClock clock;
    QtScheduler scheduler;
    ThreadQueue queue{QLatin1String(AutoRules::ioQueueLabel)};
    SettingsPreferences preferences{files, directory.filePath(QStringLiteral("preferences.ini"))};
    SkillList skills(paths, queue, preferences);
    Desktop desktop;
    Present idle;
    AutoSkillMonitor monitor({clock, scheduler, queue, paths, preferences, skills, desktop, idle,
                              QStringLiteral("local.vantle.Vantle")});
    // A session under another skill, so that each switch begins a stay and ends one.
    monitor.sessionState = [] { return TrackerCore::State::Running; };
    monitor.sessionSkillId = [] { return QStringLiteral("founder_ops"); };
    monitor.sessionBundleId = []() -> std::optional<QString> { return std::nullopt; };
    monitor.onRetagSuggested = [](const QString&) {};
    monitor.onTagPromptSuggested = [](const QString&, const QString&) {};
    monitor.refreshFromDefaults();

    Desktop unwatched;
    QObject listener;
    QObject::connect(&unwatched, &FrontmostApp::activated, &listener, [] {});
    switchThrough(desktop);
    compare(
        state, {Goal::Kind::NanosecondsEach, 50'000, kSwitches}, [&] { switchThrough(desktop); },
        [&] { switchThrough(unwatched); }, [] { QCoreApplication::processEvents(); });
    queue.sync([] {});
}

void suggestion(benchmark::State& state) {
    const std::vector<Skill> skills(Skill::defaults().begin(), Skill::defaults().end());
    const Application unknown = {QStringLiteral("org.example.some-rather-long-identity"),
                                 QStringLiteral("An application that nobody has heard of")};
    compare(
        state, {Goal::Kind::NanosecondsEach, 5'000, kSwitches},
        [&] {
            for (int i = 0; i < kSwitches; ++i)
                benchmark::DoNotOptimize(
                    autosuggestion::suggestedSkillId(unknown.bundleId, unknown.name, skills));
        },
        [&] {
            for (int i = 0; i < kSwitches; ++i)
                benchmark::DoNotOptimize(unknown.name.toLower());
        });
}

[[maybe_unused]] const bool kRegistered = [] {
    benchmark::RegisterBenchmark("another application in front, handled", activation)
        ->UseManualTime()
        ->Iterations(30);
    benchmark::RegisterBenchmark("what an unknown application may be for", suggestion)
        ->UseManualTime()
        ->Iterations(30);
    return true;
}();

} // namespace
} // namespace vantle::bench
