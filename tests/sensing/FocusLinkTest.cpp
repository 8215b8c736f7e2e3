#include "sensing/FocusLink.h"

#include "fakes/FakeProcessRunner.h"
#include "fakes/MemoryPreferences.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

class FocusLinkTest : public testing::Test {
protected:
    void choose(QLatin1String key, const QString& name) {
        m_preferences.setBoolean(FocusLink::enabledKey, true);
        m_preferences.setString(key, name);
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
    choose(FocusLink::startShortcutKey, q("Quiet"));
    choose(FocusLink::stopShortcutKey, q("Loud"));
    m_link.sessionStarted();
    m_link.sessionEnded();
    EXPECT_EQ(m_runner.detached, (std::vector{running(q("Quiet")), running(q("Loud"))}));
}

TEST_F(FocusLinkTest, NothingRunsWhileItIsOff) {
    choose(FocusLink::startShortcutKey, q("Quiet"));
    m_preferences.setBoolean(FocusLink::enabledKey, false);
    m_link.sessionStarted();
    m_preferences.remove(FocusLink::enabledKey);
    m_link.sessionStarted();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, StoppingWithNothingChosenStartsNoProcess) {
    choose(FocusLink::startShortcutKey, q("Quiet"));
    m_link.sessionEnded();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, EmptyNameCountsAsNone) {
    choose(FocusLink::startShortcutKey, QString());
    m_link.sessionStarted();
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(FocusLinkTest, NameReachesTheToolAsOneUnchangedArgument) {
    const QString name = q(" Do \"not\" $(disturb); it's 'late' ");
    choose(FocusLink::startShortcutKey, name);
    m_link.sessionStarted();
    ASSERT_EQ(m_runner.detached.size(), 1U);
    EXPECT_EQ(m_runner.detached[0].arguments, (QStringList{q("run"), name}));
}

TEST_F(FocusLinkTest, ToolThatCannotBeStartedIsNoFailureOfTheSession) {
    m_runner.canStart = false;
    choose(FocusLink::startShortcutKey, q("Quiet"));
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
    choose(FocusLink::startShortcutKey, names.value(0));
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
