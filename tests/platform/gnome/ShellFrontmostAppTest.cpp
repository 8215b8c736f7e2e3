#include "platform/gnome/ShellFrontmostApp.h"

#include "fakes/VirtualTime.h"
#include "platform/gnome/FakeShell.h"
#include "support/Await.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::FakeShell;

const QString kOld = QStringLiteral("frontmost-44@vantle.local");
const QString kNew = QStringLiteral("frontmost@vantle.local");

class ShellFrontmostAppTest : public testing::Test {
protected:
    ShellFrontmostAppTest() {
        QObject::connect(&m_front, &FrontmostApp::activated, &m_front, [this](const auto& app) {
            m_told.append(app ? app->bundleId : QStringLiteral("none"));
        });
    }
    /// The shell appears with that extension.
    void appear(const QString& uuid = kOld, double state = 6) {
        m_shell.extensions->uuid = uuid;
        m_shell.extensions->state = state;
        m_shell.appear();
    }
    [[nodiscard]] bool awaitHelp(FrontmostHelp help) {
        return await([&] { return m_front.help() == help; }, 3000);
    }
    void install(const QString& uuid) {
        const QString folder = m_data.filePath(QStringLiteral("gnome-shell/extensions/") + uuid);
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/metadata.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void report(const char* id) {
        m_shell.report(m_session.bus().baseService(), QString::fromUtf8(id));
    }
    [[nodiscard]] bool isTold(const QString& applications) {
        return await([&] { return m_told.join(u' ') == applications; }, 3000);
    }

    const QTemporaryDir m_data;
    FakeShell m_shell;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    ShellFrontmostApp m_front{m_session.bus(),
                              {m_data.path()},
                              {.scheduler = m_time,
                               .resolve =
                                   [](const WindowHints& hints) {
                                       return Application{hints.applicationId, {}};
                                   },
                               .oursHasTheKeyboard = [] { return false; }}};
    QStringList m_told;
};

TEST_F(ShellFrontmostAppTest, DesktopFilesAndClassesTellTheApplication) {
    appear(kOld, 1);
    report("org.gnome.TextEditor.desktop");
    report("XTerm");
    EXPECT_TRUE(isTold(QStringLiteral("org.gnome.TextEditor XTerm")));
    EXPECT_EQ(m_front.coverage(), AppCoverage::All);
    EXPECT_EQ(m_front.help(), FrontmostHelp::None);
    report("");
    EXPECT_TRUE(await([this] { return m_time.timerCount() == 1; }));
    m_time.advance(ShellFrontmostApp::noneIsBelievedAfter);
    EXPECT_TRUE(isTold(QStringLiteral("org.gnome.TextEditor XTerm none")));
}

TEST_F(ShellFrontmostAppTest, AnExtensionThatIsSwitchedOffTellsNoMore) {
    appear(kOld, 1);
    report("editor.desktop");
    ASSERT_TRUE(isTold(QStringLiteral("editor")));
    m_shell.end(m_session.bus().baseService());
    EXPECT_TRUE(isTold(QStringLiteral("editor none")));
    EXPECT_EQ(m_front.coverage(), AppCoverage::None);
    m_shell.setState(2);
    EXPECT_TRUE(awaitHelp(FrontmostHelp::Offered));
}

TEST_F(ShellFrontmostAppTest, CallsOfOthersSayNothing) {
    appear(kOld, 1);
    report("editor.desktop");
    ASSERT_TRUE(isTold(QStringLiteral("editor")));
    FakeShell stranger;
    stranger.report(m_session.bus().baseService(), QStringLiteral("game.desktop"));
    stranger.end(m_session.bus().baseService());
    tests::runFor(100);
    EXPECT_EQ(m_told, QStringList{QStringLiteral("editor")});
}

TEST_F(ShellFrontmostAppTest, AShellThatEndsTellsNothing) {
    appear(kOld, 1);
    report("editor.desktop");
    ASSERT_TRUE(isTold(QStringLiteral("editor")));
    m_shell.disappear();
    EXPECT_TRUE(isTold(QStringLiteral("editor none")));
    EXPECT_EQ(m_front.coverage(), AppCoverage::None);
}

TEST_F(ShellFrontmostAppTest, TheExtensionIsOfferedAndSwitchedOnByOnePress) {
    appear();
    ASSERT_TRUE(awaitHelp(FrontmostHelp::Offered));
    EXPECT_EQ(m_shell.extensions->enabled, 0) << "not before the press";
    m_front.acceptHelp();
    EXPECT_EQ(m_front.help(), FrontmostHelp::Asked);
    ASSERT_TRUE(await([this] { return m_shell.extensions->enabled == 1; }));
    tests::runFor(50);
    EXPECT_EQ(m_front.help(), FrontmostHelp::Asked) << "a yes is not yet done";
    m_shell.setState(1);
    EXPECT_TRUE(awaitHelp(FrontmostHelp::None));
}

TEST_F(ShellFrontmostAppTest, TheFormFollowsTheVersionOfTheShell) {
    m_shell.version->version = QStringLiteral("48.7");
    appear(kNew);
    EXPECT_TRUE(awaitHelp(FrontmostHelp::Offered));
}

TEST_F(ShellFrontmostAppTest, WhereExtensionsAreOffThePressIsSaidToHaveFailed) {
    appear();
    ASSERT_TRUE(awaitHelp(FrontmostHelp::Offered));
    m_front.acceptHelp();
    ASSERT_TRUE(await([this] { return m_shell.extensions->enabled == 1; }));
    tests::runFor(50);
    m_time.advance(ShellExtension::patience);
    EXPECT_EQ(m_front.help(), FrontmostHelp::Refused);
    m_shell.extensions->takes = false;
    m_front.acceptHelp();
    EXPECT_EQ(m_front.help(), FrontmostHelp::Asked);
    EXPECT_TRUE(awaitHelp(FrontmostHelp::Refused));
}

TEST_F(ShellFrontmostAppTest, OneInstalledSinceTheLoginIsToldToWaitForTheNext) {
    install(kOld);
    m_shell.appear();
    EXPECT_TRUE(awaitHelp(FrontmostHelp::AtLogin));
    m_front.acceptHelp();
    EXPECT_EQ(m_front.help(), FrontmostHelp::AtLogin);
}

TEST_F(ShellFrontmostAppTest, WhereItIsNotInstalledNothingIsOffered) {
    m_shell.appear();
    tests::runFor(100);
    EXPECT_EQ(m_front.help(), FrontmostHelp::None);
    EXPECT_EQ(m_front.coverage(), AppCoverage::None);
}

TEST_F(ShellFrontmostAppTest, AShellThatIsStillStartingOffersOnceItHasFoundIt) {
    m_shell.appear();
    tests::runFor(50);
    ASSERT_EQ(m_front.help(), FrontmostHelp::None);
    m_shell.extensions->uuid = kOld;
    m_shell.setState(6);
    EXPECT_TRUE(awaitHelp(FrontmostHelp::Offered));
}

} // namespace
} // namespace vantle
