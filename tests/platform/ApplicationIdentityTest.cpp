#include "platform/desktop/ApplicationIdentity.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

ApplicationEntry entry(const char* id, const char* name, const char* windowClass = "",
                       const char* program = "") {
    return {q(id), q(name), q(windowClass), q(program), true, false};
}

/// Some entries, and a window.
class ApplicationIdentityTest : public testing::Test {
protected:
    void install(ApplicationEntry added) { m_entries.push_back(std::move(added)); }
    [[nodiscard]] Application resolve() const {
        return resolveIdentity(m_window, m_scope, DesktopEntryIndex(m_entries));
    }
    [[nodiscard]] QString id() const { return resolve().bundleId; }

    std::vector<ApplicationEntry> m_entries;
    WindowHints m_window;
    ProcessScope m_scope;
};

TEST_F(ApplicationIdentityTest, WindowsOwnApplicationIdIsTrustedFirst) {
    install(entry("org.example.Right", "Right"));
    install(entry("wrong", "Wrong", "Window"));
    m_window.applicationId = q("org.example.Right");
    m_window.windowClass = q("Window");
    EXPECT_EQ(resolve(), (Application{q("org.example.Right"), q("Right")}));
    m_window.applicationId = q("org.example.Right.desktop");
    EXPECT_EQ(id(), q("org.example.Right"));
}

TEST_F(ApplicationIdentityTest, ApplicationIdWithoutAnEntryGivesWayToTheClass) {
    install(entry("tool", "Tool", "Window"));
    m_window.applicationId = q("org.example.Unknown");
    m_window.windowClass = q("Window");
    EXPECT_EQ(id(), q("tool"));
}

TEST_F(ApplicationIdentityTest, SandboxGoesBeforeTheClass) {
    install(entry("org.example.Boxed", "Boxed"));
    install(entry("plain", "Plain", "Window"));
    m_window.windowClass = q("Window");
    m_scope.sandboxId = q("org.example.Boxed");
    EXPECT_EQ(id(), q("org.example.Boxed"));
}

TEST_F(ApplicationIdentityTest, SandboxWithoutAnEntryIsAnIdentityAllTheSame) {
    m_window.windowClass = q("Boxed");
    m_scope.sandboxId = q("org.example.Boxed");
    EXPECT_EQ(resolve(), (Application{q("org.example.Boxed"), q("Boxed")}));
}

TEST_F(ApplicationIdentityTest, ClassIsSoughtAsStartupClassThenIdThenLastPartThenProgram) {
    m_window.windowClass = q("Editor");
    install(entry("by-program", "d", "", "editor"));
    EXPECT_EQ(id(), q("by-program"));
    install(entry("org.example.Editor", "c"));
    EXPECT_EQ(id(), q("org.example.Editor"));
    install(entry("editor", "b"));
    EXPECT_EQ(id(), q("editor"));
    install(entry("by-class", "a", "editor"));
    EXPECT_EQ(id(), q("by-class"));
}

TEST_F(ApplicationIdentityTest, InstanceIsSoughtWhereTheClassFindsNothing) {
    install(entry("web-mail", "Mail", "mail.example.com"));
    m_window.windowClass = q("Shell");
    m_window.instance = q("mail.example.com");
    EXPECT_EQ(id(), q("web-mail"));
    install(entry("shell", "Shell", "Shell"));
    EXPECT_EQ(id(), q("shell"));
}

TEST_F(ApplicationIdentityTest, UnitDecidesAmongEntriesThatShareAClass) {
    install(entry("suite", "Suite", "Window"));
    install(entry("suite-mail", "Mail", "Window"));
    m_window.windowClass = q("Window");
    EXPECT_EQ(id(), q("suite"));
    m_scope.unitId = q("suite-mail");
    EXPECT_EQ(id(), q("suite-mail"));
}

TEST_F(ApplicationIdentityTest, EntriesThatMenusShowGoFirst) {
    auto helper = entry("helper", "Helper", "Window");
    helper.isShown = false;
    install(helper);
    m_window.windowClass = q("Window");
    EXPECT_EQ(id(), q("helper"));
    install(entry("tool", "Tool", "Window"));
    EXPECT_EQ(id(), q("tool"));
}

TEST_F(ApplicationIdentityTest, ProgramThatSeveralEntriesStartTellsNone) {
    install(entry("first", "First", "", "interpreter"));
    install(entry("second", "Second", "", "interpreter"));
    m_window.windowClass = q("Unheard");
    m_scope.program = q("interpreter");
    EXPECT_EQ(id(), q("Unheard"));
    m_scope.unitId = q("second");
    EXPECT_EQ(id(), q("second"));
}

TEST_F(ApplicationIdentityTest, ProgramOfTheProcessTellsWhatTheClassDoesNot) {
    install(entry("tool", "Tool", "", "tool-bin"));
    m_window.windowClass = q("Unheard");
    m_scope.program = q("tool-bin");
    EXPECT_EQ(id(), q("tool"));
}

TEST_F(ApplicationIdentityTest, UnitTellsWhatNothingElseDoes) {
    install(entry("tool", "Tool"));
    m_window.windowClass = q("Unheard");
    m_scope.unitId = q("tool");
    EXPECT_EQ(id(), q("tool"));
}

TEST_F(ApplicationIdentityTest, ProgramStartedInATerminalIsNotTheTerminal) {
    auto terminal = entry("org.example.Terminal", "Terminal");
    terminal.isTerminal = true;
    install(terminal);
    m_window.windowClass = q("XClock");
    m_scope.unitId = q("org.example.Terminal");
    EXPECT_EQ(resolve(), (Application{q("XClock"), q("XClock")}));
    m_window.windowClass = q("terminal");
    EXPECT_EQ(id(), q("org.example.Terminal"));
}

TEST_F(ApplicationIdentityTest, WithoutAnEntryTheClassIsIdentityAndName) {
    m_window.windowClass = q("Unheard");
    m_window.instance = q("unheard-1");
    EXPECT_EQ(resolve(), (Application{q("Unheard"), q("Unheard")}));
    m_window.windowClass.clear();
    EXPECT_EQ(id(), q("unheard-1"));
}

TEST_F(ApplicationIdentityTest, WindowThatTellsNothingIsNoneThatCanBeTold) {
    install(entry("tool", "Tool"));
    EXPECT_EQ(resolve(), Application());
}

TEST_F(ApplicationIdentityTest, OddClassesAreOneLineOfBearableLength) {
    m_window.windowClass = QString(100000, QLatin1Char('x'));
    EXPECT_EQ(resolve().bundleId.size(), 200);
    m_window.windowClass = q("two\nlines");
    EXPECT_EQ(resolve(), (Application{q("two lines"), q("two lines")}));
}

TEST_F(ApplicationIdentityTest, WellKnownToolsHaveTheIdentityOfTheTablesAndTheEntrysName) {
    install(entry("code", "Visual Studio Code", "Code"));
    m_window.windowClass = q("Code");
    EXPECT_EQ(resolve(), (Application{q("com.microsoft.VSCode"), q("Visual Studio Code")}));
}

TEST_F(ApplicationIdentityTest, OfTwoEntriesWithOneIdTheFirstCounts) {
    install(entry("tool", "Mine"));
    install(entry("tool", "System's", "Window"));
    m_window.windowClass = q("tool");
    EXPECT_EQ(resolve().name, q("Mine"));
    m_window.windowClass = q("Window");
    EXPECT_EQ(id(), q("Window"));
}

} // namespace
} // namespace vantle
