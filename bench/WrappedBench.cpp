// What the review takes over years of work: all that its pages show, from the file on. The bound is
// the bare reading of the log.
#include "Comparison.h"
#include "Workshop.h"
#include "platform/LanguageModel.h"
#include "surfaces/wrapped/WrappedView.h"
#include "tracking/SessionLog.h"

namespace vantle::bench {
namespace {

constexpr int kMany = 100'000;

class NoModel final : public LanguageModel {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    [[nodiscard]] std::unique_ptr<LanguageModelSession> openSession(const QString&) override {
        return nullptr;
    }
};

void opening(benchmark::State& state, WrappedPeriod period) {
    Workshop workshop(kMany);
    NoModel model;
    compare(
        state, {Goal::Kind::NanosecondsEach, 2500, kMany},
        [&] {
            const WrappedView view(
                {.notifications = workshop.notifications(),
                 .preferences = workshop.preferences(),
                 .model = model,
                 .clock = workshop.clock(),
                 .scheduler = workshop.scheduler(),
                 .calendar =
                     [] {
                         return Calendar{QStringLiteral("Europe/Berlin"), 2, 4};
                     },
                 .allSessions = [&] { return SessionLog(workshop.paths()).readAll().sessions; },
                 .skills = [&] { return workshop.skills().all(); },
                 .initialPeriod = period,
                 .enterVantle = {},
                 .renderPng = [](const SharePoster&) { return std::nullopt; },
                 .copyPng = [](const QByteArray&) {},
                 .savePng = [](const QByteArray&, const QString&, const auto&) {}});
            benchmark::DoNotOptimize(view.texts().poster);
        },
        [&] { benchmark::DoNotOptimize(SessionLog(workshop.paths()).readAll()); });
}

[[maybe_unused]] const bool kRegistered = [] {
    const auto add = [](const char* name, WrappedPeriod period) {
        benchmark::RegisterBenchmark(name, opening, period)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(10);
    };
    add("the review of a week opened, 100,000 sessions, a session", WrappedPeriod::Week);
    add("the review of all time opened, 100,000 sessions, a session", WrappedPeriod::AllTime);
    return true;
}();

} // namespace
} // namespace vantle::bench
