// Time that passes only when a test says so: an hour in a microsecond.
//
// Three clocks: the wall clock, which can be shifted, the timer clock, which drives timers and
// delayed work and stands still while the machine sleeps, and the uptime, which does neither.
// `advance` moves all. After each fired timer the I/O queues are run dry and then the posted
// main-thread work, until nothing is left.
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

/// A queue whose asynchronous jobs wait until they are run: a synchronous job, a drain, or
/// the virtual time settling.
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
    /// Forgets what is queued, as a kill does.
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

    /// Makes `queue` run dry whenever time settles. It must outlive this object.
    void attach(ManualQueue& queue) { m_queues.push_back(&queue); }

    /// Moves both clocks on, firing each timer that is due on the way, in order of due time.
    void advance(Seconds by);
    void advance(double seconds) { advance(Seconds(seconds)); }

    /// Moves the wall clock alone: the user set it, or a server did.
    void shiftWall(double seconds) { m_wall += Seconds(seconds); }

    /// The machine sleeps: wall clock and uptime go on, timers do not.
    void suspend(double seconds);

    /// The program is stopped while the machine runs on: no timer fires, all clocks go on. Timers
    /// that came due meanwhile fire at the next `advance`, each once.
    void freeze(double seconds);

    /// Runs the queues and the posted work until nothing is left.
    void settle();

    /// Seconds on the timer clock since the beginning.
    [[nodiscard]] double timerClock() const { return m_timerClock; }
    /// How many timers and delayed works there are.
    [[nodiscard]] std::size_t timerCount() const { return m_timers.size(); }
    /// How many repeating timers of that interval there are.
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
    double m_slept = 0; ///< seconds that the machine slept since the beginning
    std::uint64_t m_nextId = 0;
    std::map<std::uint64_t, Entry> m_timers;
    std::deque<std::function<void()>> m_posted;
    std::vector<ManualQueue*> m_queues;
};

} // namespace vantle::fakes
