// A measure of ours beside a bound that is measured in the same minute.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <string>
#include <vector>

namespace vantle::bench {

/// What a measure has to keep: a ratio to its bound, or so many nanoseconds an item.
struct Goal {
    enum class Kind { Ratio, NanosecondsEach, BytesEach };
    Kind kind = Kind::Ratio;
    double limit = 1;
    double items = 1; ///< how many a run goes through
};

/// Leaves the outcome where the reporter finds it; `ours` and `bound` in seconds, or in bytes, for
/// one item.
inline void report(benchmark::State& state, double ours, double bound, const Goal& goal) {
    state.counters["ours"] = ours;
    state.counters["bound"] = bound;
    state.counters["kind"] = static_cast<double>(goal.kind);
    state.counters["limit"] = goal.limit;
}

inline double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

template <typename Work>
double secondsFor(Work& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Time of this thread's on a processor: for work that waits for nothing, whatever else runs.
template <typename Work>
double processorSecondsFor(Work& work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
    };
    const double begin = now();
    work();
    return now() - begin;
}

/// As `compare`, for computations on one thread: processor time, which other programs' turns take
/// no part in.
template <typename Ours, typename Bound>
void compareComputing(benchmark::State& state, const Goal& goal, Ours ours, Bound bound) {
    std::vector<double> oursTook;
    std::vector<double> boundTook;
    for (auto _ : state) {
        oursTook.push_back(processorSecondsFor(ours));
        boundTook.push_back(processorSecondsFor(bound));
        state.SetIterationTime(oursTook.back());
    }
    report(state, medianOf(oursTook) / goal.items, medianOf(boundTook) / goal.items, goal);
}

/// Runs ours and the bound in turn, so that a slow moment of the machine meets both, and reports
/// the median of each. `cleanUp` runs after ours and takes no part in the time.
template <typename Ours, typename Bound, typename CleanUp>
void compare(benchmark::State& state, const Goal& goal, Ours ours, Bound bound, CleanUp cleanUp) {
    std::vector<double> oursTook;
    std::vector<double> boundTook;
    for (auto _ : state) {
        oursTook.push_back(secondsFor(ours));
        cleanUp();
        boundTook.push_back(secondsFor(bound));
        state.SetIterationTime(oursTook.back());
    }
    report(state, medianOf(oursTook) / goal.items, medianOf(boundTook) / goal.items, goal);
}

template <typename Ours, typename Bound>
void compare(benchmark::State& state, const Goal& goal, Ours ours, Bound bound) {
    compare(state, goal, ours, bound, [] {});
}

} // namespace vantle::bench
