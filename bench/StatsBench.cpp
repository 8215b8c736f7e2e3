// What a review costs over a log of a million sessions, and that it grows with the log and not
// faster. The bound is the plainest loop over the same records.
#include "Comparison.h"
#include "SampleLog.h"
#include "review/stats/WrappedStats.h"
#include "tracking/SessionLines.h"

#include <map>

namespace vantle::bench {
namespace {

/// As they come out of a log.
const std::vector<Session>& sessions(int count) {
    static std::map<int, std::vector<Session>> made;
    std::vector<Session>& read = made[count];
    if (read.empty()) {
        read.reserve(static_cast<std::size_t>(count));
        sessionlines::Reader().read(sampleLog(count),
                                    [&](QByteArrayView, std::optional<Session>&& session) {
                                        if (session) read.push_back(std::move(*session));
                                    });
    }
    return read;
}

/// Right after the last record.
WrappedSettings settingsFor(const std::vector<Session>& log) {
    WrappedSettings settings;
    settings.now = log.back().endedAt;
    settings.calendar = {QStringLiteral("Europe/Berlin"), 2, 4, QStringLiteral("en_US")};
    settings.skills.assign(Skill::defaults().begin(), Skill::defaults().end());
    return settings;
}

void plainSum(const std::vector<Session>& log) {
    std::int64_t seconds = 0;
    for (const Session& session : log)
        seconds += session.activeSeconds;
    benchmark::DoNotOptimize(seconds);
}

void review(benchmark::State& state, WrappedPeriod period, int count, double limit) {
    const std::vector<Session>& log = sessions(count);
    const WrappedSettings settings = settingsFor(log);
    compareComputing(
        state, {Goal::Kind::NanosecondsEach, limit, static_cast<double>(count)},
        [&] { benchmark::DoNotOptimize(WrappedStats::compute(log, period, settings)); },
        [&] { plainSum(log); });
}

void add(const std::string& name, WrappedPeriod period, int count, double limit) {
    benchmark::RegisterBenchmark(
        name.c_str(), [=](benchmark::State& state) { review(state, period, count, limit); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
}

[[maybe_unused]] const bool kRegistered = [] {
    constexpr double kAllTime = 120;
    constexpr double kToday = 10;
    add("review of all time, 1,000 sessions, each", WrappedPeriod::AllTime, 1'000, kAllTime);
    add("review of all time, 10,000 sessions, each", WrappedPeriod::AllTime, 10'000, kAllTime);
    add("review of all time, 100,000 sessions, each", WrappedPeriod::AllTime, 100'000, kAllTime);
    add("review of all time, 1,000,000 sessions, each", WrappedPeriod::AllTime, 1'000'000,
        kAllTime);
    add("review of today, 1,000,000 sessions, each", WrappedPeriod::Today, 1'000'000, kToday);
    add("review of a week, 1,000,000 sessions, each", WrappedPeriod::Week, 1'000'000, kAllTime);
    return true;
}();

} // namespace
} // namespace vantle::bench
