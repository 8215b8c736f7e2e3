// The numbers that every surface recomputes from the whole log, over a million sessions. The bound
// is the plainest loop over the same records.
#include "Comparison.h"
#include "SampleLog.h"
#include "tracking/SessionGroup.h"
#include "tracking/SessionLines.h"
#include "tracking/Totals.h"

namespace vantle::bench {
namespace {

constexpr int kMany = 1'000'000;
constexpr Goal kGoal = {Goal::Kind::NanosecondsEach, 20, kMany};

/// As they come out of a log.
const std::vector<Session>& sessions() {
    static const std::vector<Session> all = [] {
        std::vector<Session> read;
        read.reserve(kMany);
        sessionlines::Reader().read(sampleLog(kMany),
                                    [&](QByteArrayView, std::optional<Session>&& session) {
                                        if (session) read.push_back(std::move(*session));
                                    });
        return read;
    }();
    return all;
}

/// A day in the middle of the records' last week.
Date now() { return sessions().back().endedAt; }

const std::vector<Skill>& skills() {
    static const std::vector<Skill> seeds(Skill::defaults().begin(), Skill::defaults().end());
    return seeds;
}

void plainSum() {
    std::int64_t seconds = 0;
    for (const Session& session : sessions())
        seconds += session.activeSeconds;
    benchmark::DoNotOptimize(seconds);
}

template <typename Ours>
void overAll(benchmark::State& state, Ours ours) {
    static_cast<void>(sessions());
    compare(state, kGoal, ours, plainSum);
}

void threeTotals(benchmark::State& state) {
    const Calendar calendar{QStringLiteral("Europe/Berlin"), 2, 4};
    overAll(state, [&] { benchmark::DoNotOptimize(totals::hours(sessions(), now(), calendar)); });
}

void skillTotals(benchmark::State& state) {
    overAll(state,
            [] { benchmark::DoNotOptimize(totals::perSkillTotals(sessions(), now(), skills())); });
}

void badges(benchmark::State& state) {
    overAll(state, [] { benchmark::DoNotOptimize(totals::badges(sessions(), now())); });
}

void dots(benchmark::State& state) {
    overAll(state,
            [] { benchmark::DoNotOptimize(totals::hourDotRuns(sessions(), now(), skills())); });
}

void groups(benchmark::State& state) {
    overAll(state, [] { benchmark::DoNotOptimize(SessionGroup::grouped(sessions())); });
}

void add(const char* name, void (*function)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name, function)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
}

[[maybe_unused]] const bool kRegistered = [] {
    add("today, this week and all time, a session", threeTotals);
    add("hours of each skill, a session", skillTotals);
    add("badges, a session", badges);
    add("runs of the wall of hours, a session", dots);
    add("groups, a session", groups);
    return true;
}();

} // namespace
} // namespace vantle::bench
