// A benchmark beside a bound measured in the same minute.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <string>
#include <vector>

namespace vantle::bench {

/// The goal of a benchmark: a ratio to its bound, or nanoseconds per item.
struct Goal {
    enum class Kind { Ratio, NanosecondsEach, BytesEach };
    Kind kind = Kind::Ratio;
    double limit = 1;
    double items = 1; ///< items per run
};

/// Reports the result; `ours` and `bound` in seconds or bytes per item.
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

/// Returns this thread's processor time, independent of other load.
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

/// Like `compare`, with processor time, for computations on one thread.
template <typename Ours, typename Bound, typename CleanUp>
void compareComputing(benchmark::State& state, const Goal& goal, Ours ours, Bound bound,
                      CleanUp cleanUp) {
    std::vector<double> oursTook;
    std::vector<double> boundTook;
    for (auto _ : state) {
        oursTook.push_back(processorSecondsFor(ours));
        cleanUp();
        boundTook.push_back(processorSecondsFor(bound));
        state.SetIterationTime(oursTook.back());
    }
    report(state, medianOf(oursTook) / goal.items, medianOf(boundTook) / goal.items, goal);
}

template <typename Ours, typename Bound>
void compareComputing(benchmark::State& state, const Goal& goal, Ours ours, Bound bound) {
    compareComputing(state, goal, ours, bound, [] {});
}

/// Alternates between the two, so that load affects both, and reports the medians. `cleanUp` runs
/// after `ours`, untimed.
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
