#include "sensing/FocusLink.h"

#include "fakes/FakeProcessRunner.h"
#include "fakes/MemoryPreferences.h"
#include "support/QtPrinters.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

class FocusLinkTest : public testing::Test {
protected:
    void choose(const Preference<QString>& shortcut, const QString& name) {
        settings::focusLinked.write(m_preferences, true);
        shortcut.write(m_preferences, name);
    }
    [[nodiscard]] Command running(const QString& name) const { return {m_tool, {q("run"), name}}; }
    [[nodiscard]] QStringList listed(std::optional<ProcessRunner::Output> output) {
        QStringList names{q("never told")};
        m_link.listShortcuts([&](const QStringList& told) { names = told; });
        m_runner.end(std::move(output));
        return names;
    }

    const QString m_tool = q("/usr/bin/vantle-shortcuts");
    fakes::MemoryPreferences m_preferences;
    fakes::FakeProcessRunner m_runner;
    FocusLink m_link{m_preferences, m_runner, m_tool};
};

TEST_F(FocusLinkTest, EachEndOfASessionRunsItsOwnShortcut) {
    choose(settings::startShortcut, q("Quiet"));
    choose(settings::stopShortcut, q("Loud"));
    m_link.sessionStarted();
    m_link.sessionEnded();
    EXPECT_EQ(m_runner.detached, (std::vector{running(q("Quiet")), running(q("Loud"))}));
}

TEST_F(FocusLinkTest, NothingRunsWhileItIsOff) {
    choose(settings::startShortcut, q("Quiet"));
    settings::focusLinked.write(m_preferences, false);
    m_link.sessionStarted();
    settings::focusLinked.remove(m_preferences);
    m_link.sessionStarted();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, StoppingWithNothingChosenStartsNoProcess) {
    choose(settings::startShortcut, q("Quiet"));
    m_link.sessionEnded();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, EmptyNameCountsAsNone) {
    choose(settings::startShortcut, QString());
    m_link.sessionStarted();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, NameReachesTheToolAsOneUnchangedArgument) {
    const QString name = q(" Do \"not\" $(disturb); it's 'late' ");
    choose(settings::startShortcut, name);
    m_link.sessionStarted();
    ASSERT_EQ(m_runner.detached.size(), 1U);
    EXPECT_EQ(m_runner.detached[0].arguments, (QStringList{q("run"), name}));
}

TEST_F(FocusLinkTest, SessionStartsWithoutAWorkingTool) {
    m_runner.canStart = false;
    choose(settings::startShortcut, q("Quiet"));
    m_link.sessionStarted();
    m_link.sessionStarted();
    EXPECT_EQ(m_runner.detached.size(), 2U);
}

TEST_F(FocusLinkTest, ListIsAskedOfTheTool) {
    m_link.listShortcuts([](const QStringList&) {});
    EXPECT_EQ(m_runner.collected, (std::vector{Command{m_tool, {q("list")}}}));
}

TEST_F(FocusLinkTest, NamesKeepTheToolsOrderAndTheirBlanks) {
    EXPECT_EQ(listed({{0, "Zulu\n alpha \n\nMike\n"}}),
              (QStringList{q("Zulu"), q(" alpha "), q("Mike")}));
    EXPECT_EQ(listed({{0, "no line feed"}}), QStringList{q("no line feed")});
    EXPECT_EQ(listed({{0, "carriage\r\n"}}), QStringList{q("carriage\r")});
}

TEST_F(FocusLinkTest, NameWithATrailingBlankIsPassedBackTheSameWay) {
    const QStringList names = listed({{0, "Quiet \n"}});
    choose(settings::startShortcut, names.value(0));
    m_link.sessionStarted();
    EXPECT_EQ(m_runner.detached, std::vector{running(q("Quiet "))});
}

TEST_F(FocusLinkTest, FailedListIsEmpty) {
    EXPECT_EQ(listed(std::nullopt), QStringList());
    EXPECT_EQ(listed({{1, "Quiet\n"}}), QStringList());
    EXPECT_EQ(listed({{0, "Quiet\n\xFF\n"}}), QStringList()) << "no UTF-8";
    EXPECT_EQ(listed({{0, "Quiet\n\xC3"}}), QStringList()) << "cut within a letter";
    EXPECT_EQ(listed({{0, ""}}), QStringList());
}

} // namespace
} // namespace vantle
