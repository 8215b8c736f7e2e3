#include "platform/applications/ApplicationIdentity.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

ApplicationEntry entry(const char* id, const char* name, const char* windowClass = "",
                       const char* program = "") {
    return {text(id), text(name), text(windowClass), text(program), true, false};
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
    m_window.applicationId = text("org.example.Right");
    m_window.windowClass = text("Window");
    EXPECT_EQ(resolve(), (Application{text("org.example.Right"), text("Right")}));
    m_window.applicationId = text("org.example.Right.desktop");
    EXPECT_EQ(id(), text("org.example.Right"));
}

TEST_F(ApplicationIdentityTest, ApplicationIdWithoutAnEntryGivesWayToTheClass) {
    install(entry("tool", "Tool", "Window"));
    m_window.applicationId = text("org.example.Unknown");
    m_window.windowClass = text("Window");
    EXPECT_EQ(id(), text("tool"));
}

TEST_F(ApplicationIdentityTest, SandboxGoesBeforeTheClass) {
    install(entry("org.example.Boxed", "Boxed"));
    install(entry("plain", "Plain", "Window"));
    m_window.windowClass = text("Window");
    m_scope.sandboxId = text("org.example.Boxed");
    EXPECT_EQ(id(), text("org.example.Boxed"));
}

TEST_F(ApplicationIdentityTest, PartOfASuiteInASandboxIsThatPart) {
    install(entry("org.example.Office", "Office", "office-start"));
    install(entry("org.example.Office.writer", "Writer", "office-writer"));
    install(entry("office-writer", "Writer outside", "office-writer"));
    m_scope.sandboxId = text("org.example.Office");
    m_window.windowClass = text("office-writer");
    EXPECT_EQ(resolve().name, text("Writer"));
    m_window.windowClass = text("office-start");
    EXPECT_EQ(resolve().name, text("Office"));
    m_window.windowClass = text("elsewhere");
    EXPECT_EQ(resolve().name, text("Office"));
}

TEST_F(ApplicationIdentityTest, PartOfASuiteInASnapIsThatPart) {
    install(entry("office_office", "Office"));
    install(entry("office_calc", "Calc", "office-calc"));
    install(entry("officer_calc", "Another", "office-calc"));
    m_scope.sandboxId = text("office_office");
    m_window.windowClass = text("office-calc");
    EXPECT_EQ(resolve().name, text("Calc"));
}

TEST_F(ApplicationIdentityTest, InterpreterIsNobodysIdentity) {
    auto interpreter = entry("python3.11", "Python (v3.11)", "", "python3.11");
    interpreter.isShown = false;
    interpreter.isInTerminal = true;
    install(interpreter);
    m_scope.program = text("python3.11");
    m_window.windowClass = text("Ledger.py");
    EXPECT_EQ(resolve(), (Application{text("Ledger.py"), text("Ledger.py")}));
    m_window.windowClass = text("Chess.py");
    EXPECT_EQ(id(), text("Chess.py"));
    m_window.windowClass = text("python3.11");
    m_scope.unitId = text("python3.11");
    EXPECT_EQ(resolve(), Application());
}

TEST_F(ApplicationIdentityTest, ProgramsOfOneInterpreterAreToldApartByTheirScripts) {
    auto interpreter = entry("python3", "Python 3", "python3");
    interpreter.isInTerminal = true; // shown, as some distributions have it
    install(interpreter);
    m_scope.program = text("python3.11");
    for (const char* shared : {"python3", "Python3.11", "Tk"}) {
        m_window.windowClass = text(shared);
        m_window.instance = text("python3");
        m_scope.script = text("ledger.py");
        EXPECT_EQ(resolve(), (Application{text("ledger.py"), text("ledger.py")})) << shared;
        m_scope.script = text("chess.py");
        EXPECT_EQ(id(), text("chess.py")) << shared;
        m_scope.script.clear();
        EXPECT_EQ(resolve(), Application()) << shared;
    }
}

TEST_F(ApplicationIdentityTest, ScriptThatAnEntryStartsIsThatApplication) {
    install(entry("org.example.Ledger", "Ledger", "", "ledger"));
    m_window.windowClass = text("python3");
    m_scope.program = text("python3.11");
    m_scope.script = text("ledger");
    EXPECT_EQ(resolve().name, text("Ledger"));
}

TEST_F(ApplicationIdentityTest, WindowOfTheToolkitOutsideAnInterpreterIsItself) {
    m_window.windowClass = text("Tk");
    m_scope.program = text("drawing");
    EXPECT_EQ(id(), text("Tk"));
}

TEST_F(ApplicationIdentityTest, ProgramOfAHiddenOrATerminalsEntryTellsNothing) {
    auto hidden = entry("hidden", "Hidden", "", "viewer");
    hidden.isShown = false;
    install(hidden);
    auto text = entry("monitor", "Monitor", "", "monitor-bin");
    text.isInTerminal = true;
    install(text);
    m_window.windowClass = tests::text("Unheard");
    for (const char* program : {"viewer", "monitor-bin"}) {
        m_scope.program = tests::text(program);
        EXPECT_EQ(id(), tests::text("Unheard")) << program;
    }
    install(entry("shown", "Shown", "", "viewer"));
    m_scope.program = tests::text("viewer");
    EXPECT_EQ(id(), tests::text("shown"));
}

TEST_F(ApplicationIdentityTest, SandboxWithoutAnEntryIsAnIdentityAllTheSame) {
    m_window.windowClass = text("Boxed");
    m_scope.sandboxId = text("org.example.Boxed");
    EXPECT_EQ(resolve(), (Application{text("org.example.Boxed"), text("Boxed")}));
}

TEST_F(ApplicationIdentityTest, ClassIsSoughtAsStartupClassThenIdThenLastPartThenProgram) {
    m_window.windowClass = text("Editor");
    install(entry("by-program", "d", "", "editor"));
    EXPECT_EQ(id(), text("by-program"));
    install(entry("org.example.Editor", "c"));
    EXPECT_EQ(id(), text("org.example.Editor"));
    install(entry("editor", "b"));
    EXPECT_EQ(id(), text("editor"));
    install(entry("by-class", "a", "editor"));
    EXPECT_EQ(id(), text("by-class"));
}

TEST_F(ApplicationIdentityTest, InstanceIsSoughtWhereTheClassFindsNothing) {
    install(entry("web-mail", "Mail", "mail.example.com"));
    m_window.windowClass = text("Shell");
    m_window.instance = text("mail.example.com");
    EXPECT_EQ(id(), text("web-mail"));
    install(entry("shell", "Shell", "Shell"));
    EXPECT_EQ(id(), text("shell"));
}

TEST_F(ApplicationIdentityTest, UnitDecidesAmongEntriesThatShareAClass) {
    install(entry("suite", "Suite", "Window"));
    install(entry("suite-mail", "Mail", "Window"));
    m_window.windowClass = text("Window");
    EXPECT_EQ(id(), text("suite"));
    m_scope.unitId = text("suite-mail");
    EXPECT_EQ(id(), text("suite-mail"));
}

TEST_F(ApplicationIdentityTest, EntriesThatMenusShowGoFirst) {
    auto helper = entry("helper", "Helper", "Window");
    helper.isShown = false;
    install(helper);
    m_window.windowClass = text("Window");
    EXPECT_EQ(id(), text("helper"));
    install(entry("tool", "Tool", "Window"));
    EXPECT_EQ(id(), text("tool"));
}

TEST_F(ApplicationIdentityTest, ProgramThatSeveralEntriesStartTellsNone) {
    install(entry("first", "First", "", "interpreter"));
    install(entry("second", "Second", "", "interpreter"));
    m_window.windowClass = text("Unheard");
    m_scope.program = text("interpreter");
    EXPECT_EQ(id(), text("Unheard"));
    m_scope.unitId = text("second");
    EXPECT_EQ(id(), text("second"));
}

TEST_F(ApplicationIdentityTest, ProgramOfTheProcessTellsWhatTheClassDoesNot) {
    install(entry("tool", "Tool", "", "tool-bin"));
    m_window.windowClass = text("Unheard");
    m_scope.program = text("tool-bin");
    EXPECT_EQ(id(), text("tool"));
}

TEST_F(ApplicationIdentityTest, UnitTellsWhatNothingElseDoes) {
    install(entry("tool", "Tool"));
    m_window.windowClass = text("Unheard");
    m_scope.unitId = text("tool");
    EXPECT_EQ(id(), text("tool"));
}

TEST_F(ApplicationIdentityTest, ProgramStartedInATerminalIsNotTheTerminal) {
    auto terminal = entry("org.example.Terminal", "Terminal");
    terminal.isTerminal = true;
    install(terminal);
    m_window.windowClass = text("XClock");
    m_scope.unitId = text("org.example.Terminal");
    EXPECT_EQ(resolve(), (Application{text("XClock"), text("XClock")}));
    m_window.windowClass = text("terminal");
    EXPECT_EQ(id(), text("org.example.Terminal"));
}

TEST_F(ApplicationIdentityTest, WithoutAnEntryTheClassIsIdentityAndName) {
    m_window.windowClass = text("Unheard");
    m_window.instance = text("unheard-1");
    EXPECT_EQ(resolve(), (Application{text("Unheard"), text("Unheard")}));
    m_window.windowClass.clear();
    EXPECT_EQ(id(), text("unheard-1"));
}

TEST_F(ApplicationIdentityTest, WindowThatTellsNothingIsNoneThatCanBeTold) {
    install(entry("tool", "Tool"));
    EXPECT_EQ(resolve(), Application());
}

TEST_F(ApplicationIdentityTest, OddClassesAreOneLineOfBearableLength) {
    m_window.windowClass = QString(100000, QLatin1Char('x'));
    EXPECT_EQ(resolve().bundleId.size(), 200);
    m_window.windowClass = text("two\nlines");
    EXPECT_EQ(resolve(), (Application{text("two lines"), text("two lines")}));
}

TEST_F(ApplicationIdentityTest, LongClassesEndWithAWholeCharacter) {
    // Half a character can't be written to a file, so its rule would be lost at the next start.
    const QString most(199, QLatin1Char('x'));
    m_window.windowClass = most + text("\U0001F600");
    EXPECT_EQ(resolve(), (Application{most, most}));
    m_window.windowClass = most + text(" y");
    EXPECT_EQ(resolve(), (Application{most, most}));
}

TEST_F(ApplicationIdentityTest, WellKnownToolsHaveTheIdentityOfTheTablesAndTheEntrysName) {
    install(entry("code", "Visual Studio Code", "Code"));
    m_window.windowClass = text("Code");
    EXPECT_EQ(resolve(), (Application{text("com.microsoft.VSCode"), text("Visual Studio Code")}));
}

TEST_F(ApplicationIdentityTest, OfTwoEntriesWithOneIdTheFirstCounts) {
    install(entry("tool", "Mine"));
    install(entry("tool", "System's", "Window"));
    m_window.windowClass = text("tool");
    EXPECT_EQ(resolve().name, text("Mine"));
    m_window.windowClass = text("Window");
    EXPECT_EQ(id(), text("Window"));
}

} // namespace
} // namespace vantle
