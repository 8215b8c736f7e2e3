// What windows take over years of work: a letter typed into the search of the notes, and all that
// the hours window computes. The bounds are the barest look at the same notes, and one sum.
#include "Comparison.h"
#include "SampleLog.h"
#include "Workshop.h"
#include "surfaces/dashboard/DashboardFigures.h"
#include "surfaces/notes/LogView.h"
#include "tracking/Totals.h"

namespace vantle::bench {
namespace {

constexpr int kMany = 100'000;

Calendar berlin() { return {QStringLiteral("Europe/Berlin"), 2, 4}; }

/// Types the queries in turn, from the first on again.
void search(benchmark::State& state, const QStringList& queries) {
    Workshop workshop(kMany);
    const std::unique_ptr<AppModel> model = workshop.makeModel(berlin);
    LogView view({model->tracker(), workshop.skills(), workshop.notifications(),
                  workshop.preferences(), workshop.clock(), workshop.scheduler(), berlin,
                  [](const QString&) {}});
    const auto& entries = view.rows()->content().log.entries;
    qsizetype typed = 0;
    compare(
        state, {Goal::Kind::NanosecondsEach, 160, kMany},
        [&] {
            view.setQuery(queries[typed++ % queries.size()]);
            benchmark::DoNotOptimize(view.subtitleText());
            benchmark::DoNotOptimize(view.footerText());
        },
        [&] {
            qsizetype found = 0;
            for (const LogEntry& entry : entries)
                found += entry.searchable.contains(queries[typed % queries.size()]) ? 1 : 0;
            benchmark::DoNotOptimize(found);
        });
}

void figures(benchmark::State& state) {
    Workshop workshop(kMany);
    const SessionList sessions = workshop.tracker().allSessions();
    const DashboardSetting setting{
        sessions.back().endedAt, berlin(), {Skill::defaults().begin(), Skill::defaults().end()}};
    compare(
        state, {Goal::Kind::NanosecondsEach, 500, kMany},
        [&] {
            benchmark::DoNotOptimize(dashboard::stats(sessions, setting));
            benchmark::DoNotOptimize(dashboard::wallColors(sessions, setting));
            benchmark::DoNotOptimize(dashboard::skillTotals(sessions, setting));
            benchmark::DoNotOptimize(dashboard::recent(sessions, setting));
        },
        [&] { benchmark::DoNotOptimize(totals::secondsAllTime(sessions, setting.now)); });
}

[[maybe_unused]] const bool kRegistered = [] {
    const auto add = [](const char* name, auto measure) {
        benchmark::RegisterBenchmark(name, measure)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(20);
    };
    // Of two letters in turn one stands in most notes.
    add("a letter in the search of 100,000 notes, a note", [](benchmark::State& state) {
        search(state, {QStringLiteral("e"), QStringLiteral("qz")});
    });
    add("letters of a word typed one by one, a note", [](benchmark::State& state) {
        search(state, {QStringLiteral("e"), QStringLiteral("er"), QStringLiteral("erx")});
    });
    add("the hours window over 100,000 sessions, a session", figures);
    return true;
}();

} // namespace
} // namespace vantle::bench
