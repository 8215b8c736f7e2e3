// The queue with a thread of its own. Latches say when a job may go on, so no test waits for time.
#include "base/SerialQueue.h"

#include <gmock/gmock.h>

#include <array>
#include <atomic>
#include <latch>
#include <memory>
#include <pthread.h>
#include <vector>

namespace vantle {
namespace {

const QString kLabel = QStringLiteral("local.vantle.tracker-io");

TEST(ThreadQueue, RunsJobsInTheOrderInWhichTheyCame) {
    ThreadQueue queue(kLabel);
    std::vector<int> order;
    for (int i = 0; i < 100; ++i)
        queue.async([&order, i] { order.push_back(i); });
    queue.drain();
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST(ThreadQueue, DoesNotMakeTheCallerOfAnAsynchronousJobWait) {
    ThreadQueue queue(kLabel);
    std::latch mayFinish(1);
    std::atomic<bool> finished = false;
    queue.async([&] {
        mayFinish.wait();
        finished = true;
    });
    EXPECT_FALSE(finished) << "reached while the job waits for us";
    mayFinish.count_down();
    queue.drain();
    EXPECT_TRUE(finished);
}

TEST(ThreadQueue, RunsASynchronousJobAfterAllThatWasQueued) {
    ThreadQueue queue(kLabel);
    std::latch mayStart(1);
    std::vector<int> order;
    queue.async([&] { mayStart.wait(); });
    queue.async([&] { order.push_back(1); });
    mayStart.count_down();
    queue.sync([&] { order.push_back(2); });
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST(ThreadQueue, RunsOneJobAtATimeFromAnyThread) {
    ThreadQueue queue(kLabel);
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    int count = 0; // guarded by nothing but the queue
    std::latch start(4);
    std::vector<std::thread> senders;
    for (int sender = 0; sender < 4; ++sender) {
        senders.emplace_back([&] {
            start.arrive_and_wait();
            for (int i = 0; i < 250; ++i) {
                const auto job = [&] {
                    most = std::max<int>(most, ++running);
                    ++count;
                    --running;
                };
                if (i % 10 == 0)
                    queue.sync(job);
                else
                    queue.async(job);
            }
        });
    }
    for (std::thread& sender : senders)
        sender.join();
    queue.drain();
    EXPECT_EQ(count, 1000);
    EXPECT_EQ(most, 1);
}

TEST(ThreadQueue, RunsQueuedJobsOffTheCallersThreadAndAlwaysOnTheSame) {
    ThreadQueue queue(kLabel);
    std::array<std::thread::id, 2> threads;
    for (std::thread::id& thread : threads)
        queue.async([&thread] { thread = std::this_thread::get_id(); });
    queue.drain();
    EXPECT_NE(threads[0], std::this_thread::get_id());
    EXPECT_EQ(threads[1], threads[0]);
}

TEST(ThreadQueue, RunsAJobOnTheThreadThatWaitsForItWhenNothingElseIsQueued) {
    ThreadQueue queue(kLabel);
    EXPECT_EQ(queue.run([] { return std::this_thread::get_id(); }), std::this_thread::get_id());
}

TEST(ThreadQueue, AJobOnTheWaitingThreadKeepsTheOthersWaiting) {
    ThreadQueue queue(kLabel);
    std::latch queued(1);
    std::atomic<bool> ran = false;
    std::thread sender;
    queue.sync([&] {
        sender = std::thread([&] {
            queue.async([&] { ran = true; });
            queued.count_down();
            queue.sync([&] { EXPECT_TRUE(ran); });
        });
        queued.wait();
        EXPECT_FALSE(ran);
    });
    sender.join();
    EXPECT_TRUE(ran);
}

TEST(ThreadQueue, AnswersWithValuesThatCanOnlyBeMoved) {
    ThreadQueue queue(kLabel);
    const std::unique_ptr<int> answer = queue.run([] { return std::make_unique<int>(42); });
    EXPECT_EQ(*answer, 42);
}

TEST(ThreadQueue, RunsWhatIsStillQueuedBeforeItGoes) {
    std::latch mayStart(1);
    int ran = 0;
    std::thread opener;
    {
        ThreadQueue queue(kLabel);
        queue.async([&] { mayStart.wait(); });
        for (int i = 0; i < 10; ++i)
            queue.async([&] { ++ran; });
        opener = std::thread([&] { mayStart.count_down(); });
    }
    opener.join();
    EXPECT_EQ(ran, 10);
}

TEST(ThreadQueue, AJobMayQueueAnotherOne) {
    std::vector<int> order;
    {
        ThreadQueue queue(kLabel);
        queue.async([&] {
            queue.async([&] { order.push_back(2); });
            order.push_back(1);
        });
        queue.drain();
    }
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST(ThreadQueue, WithoutAJobEndsWithoutBlocking) {
    { const ThreadQueue queue(kLabel); }
    ThreadQueue other(kLabel);
    other.drain();
}

TEST(ThreadQueue, ShowsTheEndOfItsLabelToDebuggers) {
    ThreadQueue queue(kLabel);
    std::array<char, 16> name{};
    queue.async([&name] { ::pthread_getname_np(::pthread_self(), name.data(), name.size()); });
    queue.drain();
    EXPECT_STREQ(name.data(), "ntle.tracker-io");
}

} // namespace
} // namespace vantle
