// capsule_frames: opens and closes a capsule on the display and prints what it saw, in a line:
// frames a second while it opens, the longest wait for a frame in ms (of each opening; the median,
// since other programs have their turns as well), the processor time of a frame
// in ms, and how many frames were drawn in ten seconds with the capsule closed.
#include "FrameClock.h"
#include "base/Scheduler.h"
#include "platform/ReducedMotion.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11PanelHost.h"
#include "platform/x11/X11RawPresses.h"
#include "surfaces/capsule/CapsuleWindow.h"

#include <QGuiApplication>
#include <QQmlEngine>

#include <algorithm>
#include <cstdio>

namespace vantle::bench {
namespace {

constexpr int kRounds = 12;
constexpr int kOpening = 700; // ms, in which the spring comes to rest
constexpr int kClosing = 400;
constexpr int kClosed = 10'000; // ends after the view is gone

class Moving final : public ReducedMotion {
public:
    [[nodiscard]] bool enabled() const override { return false; }
};

std::unique_ptr<NotchCapsule> makeCapsule(const NotchCapsule::Environment& environment,
                                          const ScreenShape& screen) {
    NotchCapsule::Form form;
    form.skills = {Skill::defaults().begin(), Skill::defaults().end()};
    form.skill = form.skills.front();
    return std::make_unique<NotchCapsule>(environment, std::move(form), screen);
}

int run() {
    QtScheduler scheduler;
    PosixFileSystem files;
    SettingsPreferences preferences(files, QStringLiteral("/nonexistent/preferences.ini"));
    const Moving motion;
    const CapsuleText text;
    X11Connection x11;
    X11RawPresses presses(x11);
    X11PanelHost host(x11, scheduler, presses);
    const auto engine = std::make_shared<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    const ScreenShape screen{.frame = QRectF(0, 0, 1440, 900),
                             .available = QRectF(0, 0, 1440, 900)};
    auto capsule = makeCapsule({scheduler, preferences, motion, text}, screen);
    const Placement place = capsule::placement(capsule->metrics(), screen);
    auto window = std::make_unique<CapsuleWindow>(
        CapsuleWindow::Environment{scheduler, host, [engine] { return engine; }},
        std::move(capsule), place);
    window->prepare();
    runFor(1000);

    std::vector<double> frames;
    QObject::connect(&window->panel(), &QQuickWindow::frameSwapped, &window->panel(),
                     [&] { frames.push_back(now()); });
    std::vector<double> longest;
    double perSecond = 0;
    double spent = 0;
    std::size_t drawn = 0;
    for (int round = 0; round < kRounds; ++round) {
        frames = {now()};
        const double before = processorNow();
        window->capsule().expand();
        runFor(kOpening);
        spent += processorNow() - before;
        drawn += frames.size() - 1;
        double wait = 0;
        for (std::size_t i = 1; i < frames.size(); ++i)
            wait = std::max(wait, frames[i] - frames[i - 1]);
        longest.push_back(wait);
        perSecond += 1000 * static_cast<double>(frames.size() - 1) /
                     (frames.back() - frames.front()) / kRounds;
        window->capsule().collapse();
        runFor(kClosing);
    }
    frames.clear();
    runFor(kClosed);
    std::ranges::nth_element(longest, longest.begin() + kRounds / 2);
    std::printf("%.2f %.2f %.2f %zu\n", perSecond, longest[kRounds / 2],
                spent / static_cast<double>(drawn), frames.size());
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // before the engine goes
    return 0;
}

} // namespace
} // namespace vantle::bench

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return vantle::bench::run();
}
