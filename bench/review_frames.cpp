// review_frames: turns the pages of a review on the display, to the last and back, and prints what
// it saw, in a line: how soon after a turn the first frame of it came and the longest wait for a
// frame in it, both in ms (medians of all turns, since other programs have their turns as well; the
// first turn to a page, which makes it, and its later ones alike), the processor time of a frame in
// ms, and the per cent of a core that the open window takes without input.
#include "FrameClock.h"
#include "SampleLog.h"
#include "base/Clock.h"
#include "base/Scheduler.h"
#include "platform/LanguageModel.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "surfaces/wrapped/WrappedView.h"
#include "tracking/NotificationCenter.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

#include <algorithm>
#include <cstdio>

namespace vantle::bench {
namespace {

constexpr int kSessions = 2000;
constexpr int kMoving = 300;  // ms, in which a turned page has more than a pixel to go
constexpr int kTurning = 900; // ms, in which its parts come to rest as well
constexpr int kIdle = 20'000;

class NoModel final : public LanguageModel {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    [[nodiscard]] std::unique_ptr<LanguageModelSession> openSession(const QString&) override {
        return nullptr;
    }
};

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// What a user saw of all turns.
struct Seen {
    std::vector<double> first;   ///< ms
    std::vector<double> longest; ///< ms
    double spent = 0;            ///< processor time, ms
    std::size_t drawn = 0;
};

template <typename Turn>
void watch(QQuickView& window, Seen& seen, Turn turn) {
    std::vector<double> frames = {now()};
    const auto seeing = QObject::connect(&window, &QQuickWindow::frameSwapped, &window,
                                         [&] { frames.push_back(now()); });
    const double before = processorNow();
    turn();
    runFor(kMoving);
    seen.spent += processorNow() - before;
    seen.drawn += frames.size() - 1;
    QObject::disconnect(seeing);
    runFor(kTurning);
    if (frames.size() < 3) return;
    seen.first.push_back(frames[1] - frames[0]);
    double wait = 0;
    for (std::size_t i = 2; i < frames.size(); ++i)
        wait = std::max(wait, frames[i] - frames[i - 1]);
    seen.longest.push_back(wait);
}

int run() {
    QtScheduler scheduler;
    const SystemClock clock;
    PosixFileSystem files;
    SettingsPreferences preferences(files, QStringLiteral("/nonexistent/preferences.ini"));
    NotificationCenter notifications;
    NoModel model;
    std::vector<Session> log;
    for (int i = 0; i < kSessions; ++i)
        log.push_back(sampleSession(i));
    WrappedView review({.notifications = notifications,
                        .preferences = preferences,
                        .model = model,
                        .clock = clock,
                        .scheduler = scheduler,
                        .calendar = &Calendar::current,
                        .allSessions = [&] { return log; },
                        .skills =
                            [] {
                                const auto seeds = Skill::defaults();
                                return std::vector<Skill>(seeds.begin(), seeds.end());
                            },
                        .initialPeriod = WrappedPeriod::AllTime,
                        .enterVantle = {},
                        .renderPng = [](const SharePoster&) { return std::nullopt; },
                        .copyPng = [](const QByteArray&) {},
                        .savePng = [](const QByteArray&, const QString&, const auto&) {}});
    QQuickView window;
    window.setColor(QColor::fromRgb(0x0A0A0F));
    window.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.setInitialProperties(
        {{QStringLiteral("model"), QVariant::fromValue(static_cast<QObject*>(&review))}});
    window.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Wrapped/WrappedPage.qml")));
    window.show();
    window.requestActivate();
    runFor(3000);

    Seen seen;
    while (review.canTurnOn())
        watch(window, seen, [&] { review.turnOn(); });
    while (review.canTurnBack())
        watch(window, seen, [&] { review.turnBack(); });
    runFor(2000);
    const double before = processorNow();
    runFor(kIdle);
    const double idle = 100 * (processorNow() - before) / kIdle;
    std::printf("%.2f %.2f %.2f %.2f\n", medianOf(seen.first), medianOf(seen.longest),
                seen.spent / static_cast<double>(seen.drawn), idle);
    return 0;
}

} // namespace
} // namespace vantle::bench

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return vantle::bench::run();
}
