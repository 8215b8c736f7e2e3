#include "platform/posix/TerminationSignals.h"

#include "support/Await.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>

#include <array>
#include <optional>
#include <thread>
#include <vector>

namespace vantle {
namespace {

void doNothing(int) {}

class TerminationSignalsTest : public testing::Test {
protected:
    // Known handlers, whatever the test was started with: a shell's background jobs ignore SIGINT.
    TerminationSignalsTest() {
        for (std::size_t i = 0; i < kSignals.size(); ++i) {
            struct sigaction action {};
            action.sa_handler = doNothing;
            ::sigaction(kSignals[i], &action, &m_former[i]);
        }
    }
    ~TerminationSignalsTest() override {
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &m_former[i], nullptr);
    }

    [[nodiscard]] static auto handlerOf(int signal) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        return action.sa_handler;
    }

    static constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
    std::array<struct sigaction, 3> m_former{};
    std::vector<int> m_heard;
};

TEST_F(TerminationSignalsTest, ReachTheCallbackFromTheEventLoop) {
    const TerminationSignals signals([&](int signal) { m_heard.push_back(signal); });
    for (const int signal : kSignals) {
        m_heard.clear();
        ASSERT_EQ(::raise(signal), 0);
        EXPECT_TRUE(m_heard.empty()) << "not inside the signal handler";
        EXPECT_TRUE(tests::await([&] { return !m_heard.empty(); }));
        EXPECT_EQ(m_heard, std::vector{signal});
    }
}

TEST_F(TerminationSignalsTest, EachReachesTheCallbackInOrder) {
    const TerminationSignals signals([&](int signal) { m_heard.push_back(signal); });
    for (const int signal : {SIGHUP, SIGTERM, SIGTERM, SIGINT})
        ASSERT_EQ(::raise(signal), 0);
    EXPECT_TRUE(tests::await([&] { return m_heard.size() == 4; }));
    EXPECT_THAT(m_heard, testing::ElementsAre(SIGHUP, SIGTERM, SIGTERM, SIGINT));
}

TEST_F(TerminationSignalsTest, CallOnTheMainThreadForASignalOnAnyThread) {
    std::optional<bool> onMainThread;
    const TerminationSignals signals([&](int) {
        onMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
    });
    std::thread([] { ::raise(SIGTERM); }).join();
    EXPECT_TRUE(tests::await([&] { return onMainThread.has_value(); }));
    EXPECT_EQ(onMainThread, true);
}

TEST_F(TerminationSignalsTest, PutTheFormerHandlersBack) {
    {
        const TerminationSignals signals([](int) {});
        for (const int signal : kSignals)
            EXPECT_NE(handlerOf(signal), &doNothing);
    }
    for (const int signal : kSignals)
        EXPECT_EQ(handlerOf(signal), &doNothing) << signal;
}

TEST_F(TerminationSignalsTest, LeaveASignalIgnoredThatWasIgnored) {
    ::signal(SIGHUP, SIG_IGN);
    const TerminationSignals signals([&](int signal) { m_heard.push_back(signal); });
    ASSERT_EQ(::raise(SIGHUP), 0);
    ASSERT_EQ(::raise(SIGTERM), 0);
    EXPECT_TRUE(tests::await([&] { return !m_heard.empty(); }));
    EXPECT_EQ(m_heard, std::vector{SIGTERM});
}

TEST_F(TerminationSignalsTest, MayBeDestroyedByTheCallback) {
    std::optional<TerminationSignals> signals;
    signals.emplace([&](int signal) {
        m_heard.push_back(signal);
        signals.reset();
    });
    ASSERT_EQ(::raise(SIGTERM), 0);
    ASSERT_EQ(::raise(SIGTERM), 0);
    EXPECT_TRUE(tests::await([&] { return !signals; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_heard, std::vector{SIGTERM}) << "nothing is heard after the end";
}

TEST_F(TerminationSignalsTest, DoNotHearWhatWasMeantForAnEarlierOne) {
    {
        const TerminationSignals earlier([&](int signal) { m_heard.push_back(signal); });
        ASSERT_EQ(::raise(SIGTERM), 0);
    }
    const TerminationSignals signals([&](int signal) { m_heard.push_back(signal); });
    ASSERT_EQ(::raise(SIGINT), 0);
    EXPECT_TRUE(tests::await([&] { return !m_heard.empty(); }));
    EXPECT_EQ(m_heard, std::vector{SIGINT});
}

} // namespace
} // namespace vantle
