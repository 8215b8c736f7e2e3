#include "base/SerialQueue.h"

#include <future>
#include <pthread.h>

namespace vantle {

ThreadQueue::ThreadQueue(QString label) : m_label(std::move(label)) {}

ThreadQueue::~ThreadQueue() {
    {
        const std::lock_guard lock(m_mutex);
        m_closing = true;
    }
    m_wake.notify_one();
    if (m_thread.joinable()) m_thread.join();
}

void ThreadQueue::async(std::function<void()> job) {
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
        if (!m_thread.joinable()) m_thread = std::thread([this] { work(); });
    }
    m_wake.notify_one();
}

bool ThreadQueue::runHere(const std::function<void()>& job) {
    std::unique_lock lock(m_mutex);
    if (m_isRunning || !m_jobs.empty()) return false;
    m_isRunning = true;
    lock.unlock();
    job();
    lock.lock();
    m_isRunning = false;
    lock.unlock();
    m_wake.notify_one(); // jobs may have been queued meanwhile
    return true;
}

void ThreadQueue::sync(const std::function<void()>& job) {
    if (runHere(job)) return;
    std::promise<void> done;
    async([&] {
        job();
        done.set_value();
    });
    done.get_future().wait();
}

void ThreadQueue::work() {
    // The kernel keeps 15 characters; the end of the label tells the queues apart.
    pthread_setname_np(pthread_self(), m_label.right(15).toLatin1().constData());
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return !m_isRunning && (m_closing || !m_jobs.empty()); });
        if (m_jobs.empty()) return;
        const std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_isRunning = true;
        lock.unlock();
        job();
        lock.lock();
        m_isRunning = false;
    }
}

} // namespace vantle
