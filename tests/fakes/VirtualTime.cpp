#include "fakes/VirtualTime.h"

#include <algorithm>

namespace vantle::fakes {

class VirtualTime::Handle final : public Timer {
public:
    Handle(VirtualTime& time, std::uint64_t id) : m_time(time), m_id(id) {}
    ~Handle() override { m_time.m_timers.erase(m_id); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

private:
    VirtualTime& m_time;
    std::uint64_t m_id;
};

TimerHandle VirtualTime::add(Entry entry) {
    const std::uint64_t id = m_nextId++;
    m_timers.emplace(id, std::move(entry));
    return std::make_unique<Handle>(*this, id);
}

TimerHandle VirtualTime::scheduleRepeatingTimer(Seconds every, Seconds,
                                                std::function<void()> work) {
    return add({m_timerClock + every.count(), every.count(), m_timerClock, 0, std::move(work)});
}

TimerHandle VirtualTime::scheduleOnce(Seconds delay, std::function<void()> work) {
    return add({m_timerClock + delay.count(), 0, m_timerClock, 0, std::move(work)});
}

std::size_t VirtualTime::repeatingTimers(double every) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        m_timers, [&](const auto& item) { return item.second.every == every; }));
}

void VirtualTime::suspend(double seconds) {
    m_wall += Seconds(seconds);
    m_slept += seconds;
}

void VirtualTime::freeze(double seconds) {
    m_wall += Seconds(seconds);
    m_timerClock += seconds;
    for (auto& [id, entry] : m_timers) {
        if (entry.due >= m_timerClock) continue;
        entry.due = m_timerClock;
        // A repeating timer does not make up for what it missed.
        entry.madeAt = m_timerClock - entry.every;
        entry.fired = 0;
    }
}

void VirtualTime::settle() {
    for (;;) {
        for (ManualQueue* queue : m_queues)
            queue->runDry();
        if (m_posted.empty()) return;
        const std::function<void()> work = std::move(m_posted.front());
        m_posted.pop_front();
        work();
    }
}

void VirtualTime::advance(Seconds by) {
    const double start = m_timerClock;
    const Date wallAtStart = m_wall;
    const double target = start + by.count();
    double shifted = 0; // shiftWall called from inside a callback
    settle();
    for (;;) {
        auto next = std::ranges::min_element(
            m_timers, {}, [](const auto& item) { return std::pair(item.second.due, item.first); });
        if (next == m_timers.end() || next->second.due > target) break;
        Entry& entry = next->second;
        m_timerClock = entry.due;
        const Date wallHere = wallAtStart + Seconds(m_timerClock - start + shifted);
        m_wall = wallHere;
        const std::function<void()> work = entry.work;
        if (entry.every > 0) {
            ++entry.fired;
            entry.due = entry.madeAt + static_cast<double>(entry.fired + 1) * entry.every;
        } else {
            m_timers.erase(next);
        }
        work();
        settle();
        shifted += (m_wall - wallHere).count();
    }
    m_timerClock = target;
    m_wall = wallAtStart + Seconds(by.count() + shifted);
}

} // namespace vantle::fakes
