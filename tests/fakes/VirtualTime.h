// Virtual time, which passes only in a test's calls: an hour in a microsecond.
//
// Three clocks: the wall clock, which can be shifted; the timer clock, which drives timers and
// delayed work and stops while the machine sleeps; and the uptime. `advance` moves all of them.
// After each timer the I/O queues run, then posted main-thread work, until nothing is left.
#pragma once

#include "base/Clock.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"

#include <cstdint>
#include <deque>
#include <list>
#include <map>
#include <utility>
#include <vector>

namespace vantle::fakes {

/// A queue whose asynchronous jobs wait for a synchronous job, a drain, or settle().
class ManualQueue final : public SerialQueue {
public:
    void async(std::function<void()> job) override { m_jobs.push_back(std::move(job)); }
    void sync(const std::function<void()>& job) override {
        runDry();
        job();
    }
    void runDry() {
        while (!m_jobs.empty()) {
            const std::function<void()> job = std::move(m_jobs.front());
            m_jobs.pop_front();
            job();
        }
    }
    /// Drops queued jobs, as a kill does.
    void dropAll() { m_jobs.clear(); }
    [[nodiscard]] bool empty() const { return m_jobs.empty(); }

private:
    std::deque<std::function<void()>> m_jobs;
};

class VirtualTime final : public Clock, public Scheduler {
public:
    explicit VirtualTime(Date start = dateFromEpoch(1772359200.0)) : m_wall(start) {}

    // Clock
    [[nodiscard]] Date now() const override { return m_wall; }
    [[nodiscard]] Uptime uptime() const override {
        return {Seconds(m_timerClock + m_slept), Seconds(m_timerClock)};
    }

    // Scheduler
    [[nodiscard]] TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                                     std::function<void()> work) override;
    [[nodiscard]] TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) override;
    void post(std::function<void()> work) override { m_posted.push_back(std::move(work)); }

    /// Lets `queue` run whenever time settles. It must outlive this object.
    void attach(ManualQueue& queue) { m_queues.push_back(&queue); }

    /// Moves all clocks, and fires due timers in order of due time.
    void advance(Seconds by);
    void advance(double seconds) { advance(Seconds(seconds)); }

    /// Moves the wall clock alone, as the user or a time server does.
    void shiftWall(double seconds) { m_wall += Seconds(seconds); }

    /// The machine sleeps: wall clock and uptime continue, timers stop.
    void suspend(double seconds);

    /// The program is stopped while the machine runs: all clocks continue, no timer fires. Timers
    /// that came due fire once at the next `advance`.
    void freeze(double seconds);

    /// Runs queues and posted work until nothing is left.
    void settle();

    /// Seconds on the timer clock since the start.
    [[nodiscard]] double timerClock() const { return m_timerClock; }
    /// The number of timers and delayed works.
    [[nodiscard]] std::size_t timerCount() const { return m_timers.size(); }
    /// The number of repeating timers with that interval.
    [[nodiscard]] std::size_t repeatingTimers(double every) const;

private:
    struct Entry {
        double due = 0;
        double every = 0; ///< 0 for delayed work
        double madeAt = 0;
        std::uint64_t fired = 0;
        std::function<void()> work;
    };
    class Handle;
    TimerHandle add(Entry entry);

    Date m_wall;
    double m_timerClock = 0;
    double m_slept = 0; ///< seconds of sleep since the start
    std::uint64_t m_nextId = 0;
    std::map<std::uint64_t, Entry> m_timers;
    std::deque<std::function<void()>> m_posted;
    std::vector<ManualQueue*> m_queues;
};

} // namespace vantle::fakes
