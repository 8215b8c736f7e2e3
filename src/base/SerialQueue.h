// The one door off the main thread.
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

/// Runs jobs one at a time, in the order in which they came. All calls may come from any thread but
/// the queue's own: `sync` from inside a job of the same queue would wait for itself.
class SerialQueue {
public:
    virtual ~SerialQueue() = default;

    /// Queues `job` and returns at once.
    virtual void async(std::function<void()> job) = 0;

    /// Runs `job` after everything that is queued by now, and returns when it has run.
    virtual void sync(const std::function<void()>& job) = 0;

    /// Returns when everything that is queued by now has run.
    void drain() {
        sync([] {});
    }

    /// `sync` for a job that answers.
    template <typename Job>
    [[nodiscard]] auto run(Job&& job) {
        std::optional<std::invoke_result_t<Job>> answer;
        sync([&] { answer.emplace(job()); });
        return std::move(*answer);
    }
};

/// A queue with a thread of its own, started at the first job and kept. The label becomes the
/// thread's name as debuggers and `ps` show it. The destructor runs what is still queued.
class ThreadQueue final : public SerialQueue {
public:
    explicit ThreadQueue(QString label);
    ~ThreadQueue() override;
    ThreadQueue(const ThreadQueue&) = delete;
    ThreadQueue& operator=(const ThreadQueue&) = delete;

    void async(std::function<void()> job) override;
    void sync(const std::function<void()>& job) override;

private:
    void work();

    const QString m_label;
    std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    bool m_closing = false;
    std::thread m_thread;
};

} // namespace vantle
