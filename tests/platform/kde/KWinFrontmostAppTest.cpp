#include "platform/kde/KWinFrontmostApp.h"

#include "fakes/VirtualTime.h"
#include "platform/kde/FakeKWin.h"
#include "support/Await.h"
#include "support/PrintedWarnings.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

namespace vantle {
namespace {

using tests::await;
using tests::FakeKWin;
using tests::KWinVersion;

class KWinFrontmostAppTest : public testing::TestWithParam<KWinVersion> {
protected:
    KWinFrontmostAppTest() { start(); }

    void start() {
        m_front = std::make_unique<KWinFrontmostApp>(
            m_session->bus(),
            ReportedFrontmostApp::Reading{.scheduler = m_time,
                                          .resolve =
                                              [this](const WindowHints& hints) {
                                                  m_hints = hints;
                                                  return Application{hints.applicationId, {}};
                                              },
                                          .oursHasTheKeyboard = [] { return false; }});
        QObject::connect(m_front.get(), &FrontmostApp::activated, m_front.get(),
                         [this](const auto& app) {
                             m_told.append(app ? app->bundleId : QStringLiteral("none"));
                         });
    }
    [[nodiscard]] bool meet() {
        m_kwin.appear();
        return await([this] { return m_front->coverage() == AppCoverage::All; });
    }
    [[nodiscard]] bool isTold(const QString& applications) {
        return await([&] { return m_told.join(u' ') == applications; }, 3000);
    }
    void activate(const char* id) { m_kwin.script()->activate(QString::fromUtf8(id)); }

    FakeKWin m_kwin{GetParam()};
    std::optional<tests::BusClient> m_session{std::in_place};
    fakes::VirtualTime m_time;
    std::optional<WindowHints> m_hints;
    QStringList m_told;
    std::unique_ptr<KWinFrontmostApp> m_front;
};

INSTANTIATE_TEST_SUITE_P(, KWinFrontmostAppTest,
                         testing::Values(KWinVersion::Five, KWinVersion::Six),
                         [](const auto& version) {
                             return version.param == KWinVersion::Five ? "Five" : "Six";
                         });

TEST_P(KWinFrontmostAppTest, ScriptThatIsNotLoadedIsNotRun) {
    const tests::PrintedWarnings printed;
    m_kwin.refuses = true;
    m_kwin.appear();
    ASSERT_TRUE(await([this] { return m_kwin.calls.contains(QStringLiteral("load")); }));
    tests::runFor(50);
    EXPECT_EQ(printed.count(), 0);
    EXPECT_EQ(m_front->coverage(), AppCoverage::None);
}

TEST_P(KWinFrontmostAppTest, EachSwitchIsToldWithAllThatNamesTheApplication) {
    ASSERT_TRUE(meet());
    activate("editor");
    activate("browser");
    EXPECT_TRUE(isTold(QStringLiteral("editor browser")));
    EXPECT_EQ(m_hints, (WindowHints{.applicationId = QStringLiteral("browser"),
                                    .windowClass = QStringLiteral("browser"),
                                    .instance = QStringLiteral("browser"),
                                    .processId = 4711}));
}

TEST_P(KWinFrontmostAppTest, AMomentWithoutWindowIsNoneOnlyOnceItLasts) {
    ASSERT_TRUE(meet());
    activate("editor");
    activate("");
    activate("browser");
    EXPECT_TRUE(isTold(QStringLiteral("editor browser")));
    activate("");
    EXPECT_TRUE(await([this] { return m_time.timerCount() == 1; }));
    m_time.advance(0.15);
    EXPECT_TRUE(isTold(QStringLiteral("editor browser")));
    m_time.advance(0.1);
    EXPECT_TRUE(isTold(QStringLiteral("editor browser none")));
}

TEST_P(KWinFrontmostAppTest, TheDesktopAndPanelsAreNoApplication) {
    ASSERT_TRUE(meet());
    activate("editor");
    for (const char* id : {"desktop", "panel"}) {
        activate(id);
        EXPECT_TRUE(await([this] { return m_time.timerCount() == 1; }));
        m_time.advance(0.25);
        activate("editor");
        ASSERT_TRUE(await([this] { return m_front->frontmost().has_value(); }));
    }
    EXPECT_TRUE(isTold(QStringLiteral("editor none editor none editor")));
}

TEST_P(KWinFrontmostAppTest, AWindowThatNamesItselfLaterIsThatApplicationThen) {
    ASSERT_TRUE(meet());
    activate("editor");
    m_kwin.script()->rename(QStringLiteral("player"));
    EXPECT_TRUE(isTold(QStringLiteral("editor player")));
}

TEST_P(KWinFrontmostAppTest, TheScriptIsUnloadedBeforeAndAfter) {
    ASSERT_TRUE(meet());
    EXPECT_EQ(m_kwin.calls, QStringList({QStringLiteral("unload"), QStringLiteral("load")}));
    m_front.reset();
    EXPECT_TRUE(await([this] { return m_kwin.calls.size() == 3; }));
    EXPECT_EQ(m_kwin.calls.last(), QStringLiteral("unload"));
    EXPECT_EQ(m_kwin.script(), nullptr);
}

TEST_P(KWinFrontmostAppTest, AScriptThatAKilledProgramLeftGivesWayToTheNext) {
    ASSERT_TRUE(meet());
    const auto killed = std::move(m_front);
    m_session->leave();
    m_session.emplace();
    start();
    ASSERT_TRUE(await([this] { return m_front->coverage() == AppCoverage::All; }));
    activate("editor");
    EXPECT_TRUE(isTold(QStringLiteral("editor")));
}

TEST_P(KWinFrontmostAppTest, CallsOfOthersSayNothing) {
    ASSERT_TRUE(meet());
    activate("editor");
    ASSERT_TRUE(isTold(QStringLiteral("editor")));
    tests::BusClient stranger;
    auto call = QDBusMessage::createMethodCall(
        m_session->bus().baseService(), QStringLiteral("/local/vantle/Vantle/KWinFrontmost"),
        QStringLiteral("local.vantle.Frontmost"), QStringLiteral("report"));
    const QString game = QStringLiteral("game");
    call << game << game << game << game;
    EXPECT_EQ(stranger.bus().call(call, QDBus::BlockWithGui, 2000).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isTold(QStringLiteral("editor")));
}

TEST_P(KWinFrontmostAppTest, AWindowManagerThatGoesAndComesBackIsFollowed) {
    ASSERT_TRUE(meet());
    activate("editor");
    ASSERT_TRUE(isTold(QStringLiteral("editor")));
    m_kwin.disappear();
    EXPECT_TRUE(await([this] { return m_front->coverage() == AppCoverage::None; }));
    EXPECT_TRUE(isTold(QStringLiteral("editor none")));
    FakeKWin again(GetParam());
    again.appear();
    EXPECT_TRUE(await([this] { return m_front->coverage() == AppCoverage::All; }));
    again.script()->activate(QStringLiteral("browser"));
    EXPECT_TRUE(isTold(QStringLiteral("editor none browser")));
}

TEST(KWinFrontmostApp, WithoutABusItCantTell) {
    fakes::VirtualTime time;
    KWinFrontmostApp front(tests::noBus(),
                           {.scheduler = time, .resolve = {}, .oursHasTheKeyboard = {}});
    EXPECT_EQ(front.coverage(), AppCoverage::None);
    EXPECT_EQ(front.frontmost(), std::nullopt);
}

} // namespace
} // namespace vantle
