// Queues of work off the main thread.
#pragma once

#include <QString>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>

namespace vantle {

/// Runs jobs one at a time, in order. Callable from any thread except the queue's own: `sync` from
/// a job of the same queue would deadlock.
class SerialQueue {
public:
    virtual ~SerialQueue() = default;

    /// Queues `job` and returns immediately.
    virtual void async(std::function<void()> job) = 0;

    /// Queues `job` and returns after it ran, on any thread.
    virtual void sync(const std::function<void()>& job) = 0;

    /// Returns after all jobs queued so far ran.
    void drain() {
        sync([] {});
    }

    /// Like `sync`; returns the job's result.
    template <typename Job>
    [[nodiscard]] auto run(Job&& job) {
        std::optional<std::invoke_result_t<Job>> answer;
        sync([&] { answer.emplace(job()); });
        return std::move(*answer);
    }
};

/// A queue with its own thread, which starts with the first job that needs it. The label becomes
/// the thread's name in debuggers and `ps`. The destructor runs what is still queued.
///
/// `sync` runs its job on the caller's thread when nothing else is queued or running: the caller
/// waits in either case, and two changes of thread take 20 to 40 microseconds.
class ThreadQueue final : public SerialQueue {
public:
    explicit ThreadQueue(QString label);
    ~ThreadQueue() override;
    ThreadQueue(const ThreadQueue&) = delete;
    ThreadQueue& operator=(const ThreadQueue&) = delete;

    void async(std::function<void()> job) override;
    void sync(const std::function<void()>& job) override;

private:
    [[nodiscard]] bool runHere(const std::function<void()>& job);
    void work();

    const QString m_label;
    std::mutex m_mutex; ///< guards all members below
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs; ///< not yet started
    bool m_isRunning = false;                 ///< a job runs, on whichever thread
    bool m_closing = false;
    std::thread m_thread;
};

} // namespace vantle
