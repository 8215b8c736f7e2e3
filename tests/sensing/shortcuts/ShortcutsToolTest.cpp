// The real tool with real executables.
#include "fakes/MemoryPreferences.h"
#include "platform/posix/PosixProcessRunner.h"
#include "sensing/FocusLink.h"
#include "sensing/shortcuts/ShortcutsFolder.h"
#include "support/Await.h"
#include "support/EnvironmentVariable.h"
#include "support/QtPrinters.h"
#include "tracking/Settings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace vantle {
namespace {

class ShortcutsToolTest : public testing::Test {
protected:
    ShortcutsToolTest() { EXPECT_TRUE(QDir().mkpath(folder())); }

    [[nodiscard]] QString folder() const {
        return m_config.path() + QStringLiteral("/Vantle/shortcuts");
    }
    [[nodiscard]] QByteArray pathOf(const QByteArray& name) const {
        return QFile::encodeName(folder()) + '/' + name;
    }
    /// An executable that writes the name by which it was called into the file "ran".
    void add(const QByteArray& name,
             const QByteArray& script = "printf %s \"$0\" >\"${0%/*}/.ran\"\n",
             mode_t mode = 0755) {
        std::FILE* const file = std::fopen(pathOf(name).constData(), "w");
        ASSERT_NE(file, nullptr);
        const QByteArray text = "#!/bin/sh\n" + script;
        std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), file);
        std::fclose(file);
        ASSERT_EQ(::chmod(pathOf(name).constData(), mode), 0);
    }
    [[nodiscard]] QByteArray ran() const {
        QFile file(folder() + QStringLiteral("/.ran"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int tool(const QStringList& arguments) {
        QProcess process;
        process.start(qEnvironmentVariable("VANTLE_SHORTCUTS"), arguments);
        EXPECT_TRUE(process.waitForFinished());
        m_printed = process.readAllStandardOutput();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    /// The user's own: those that come along are printed after them.
    [[nodiscard]] QByteArray list() {
        EXPECT_EQ(tool({QStringLiteral("list")}), 0);
        EXPECT_TRUE(m_printed.endsWith(m_comeAlong)) << m_printed.constData();
        return m_printed.chopped(m_comeAlong.size());
    }
    int runShortcut(const QString& name) { return tool({QStringLiteral("run"), name}); }

    const QByteArray m_comeAlong = "Do Not Disturb off\nDo Not Disturb on\n";
    QTemporaryDir m_config;
    const tests::EnvironmentVariable m_variable{"XDG_CONFIG_HOME",
                                                QFile::encodeName(m_config.path())};
    QByteArray m_printed;
};

TEST_F(ShortcutsToolTest, ListsExecutablesSortedOneALine) {
    add("Zulu");
    add("Mike the \"quiet\"");
    add("Über");
    EXPECT_EQ(list(), "Mike the \"quiet\"\nZulu\nÜber\n");
}

TEST_F(ShortcutsToolTest, ListsNothingThatIsNoShortcut) {
    add("two\nlines");
    add(".hidden");
    add("not UTF-8 \xFF");
    add("not executable", {}, 0644);
    ASSERT_TRUE(QDir(folder()).mkdir(QStringLiteral("folder")));
    ASSERT_EQ(::symlink("nowhere", pathOf("broken").constData()), 0);
    ASSERT_EQ(::symlink("circle2", pathOf("circle1").constData()), 0);
    ASSERT_EQ(::symlink("circle1", pathOf("circle2").constData()), 0);
    ASSERT_EQ(::mkfifo(pathOf("pipe").constData(), 0755), 0);
    EXPECT_EQ(list(), "");
    ::unlink(pathOf("not UTF-8 \xFF").constData()); // Qt can't name it to remove it
}

TEST_F(ShortcutsToolTest, LinkToAProgramIsAShortcut) {
    ASSERT_EQ(::symlink("/bin/true", pathOf("Quiet").constData()), 0);
    EXPECT_EQ(list(), "Quiet\n");
    EXPECT_EQ(runShortcut(QStringLiteral("Quiet")), 0);
}

TEST_F(ShortcutsToolTest, WithoutAFolderTheListIsEmpty) {
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    EXPECT_EQ(list(), "");
    EXPECT_NE(runShortcut(QStringLiteral("Quiet")), 0);
}

TEST_F(ShortcutsToolTest, RunsTheOneOfThatNameToTheLetter) {
    for (const QByteArray name : {"Quiet ", " -n", "a \"b\" 'c' $(d)", "Über"}) {
        add(name);
        EXPECT_EQ(runShortcut(QString::fromUtf8(name)), 0);
        EXPECT_EQ(ran(), pathOf(name));
    }
    EXPECT_NE(runShortcut(QStringLiteral("Quiet")), 0) << "without its blank it is another";
}

TEST_F(ShortcutsToolTest, NamesThatLeadOutOfTheFolderAreRefused) {
    add("../outside");
    add("inside");
    for (const char* name : {"../outside", "./inside", "..", ".", "", "/bin/true", "inside/"})
        EXPECT_EQ(runShortcut(QString::fromUtf8(name)), 66) << name;
    EXPECT_EQ(ran(), "");
}

TEST_F(ShortcutsToolTest, TheUsersShortcutReplacesABundledOne) {
    add("Do Not Disturb on");
    EXPECT_EQ(tool({QStringLiteral("list")}), 0);
    EXPECT_EQ(m_printed, "Do Not Disturb on\nDo Not Disturb off\n");
    EXPECT_EQ(runShortcut(QStringLiteral("Do Not Disturb on")), 0);
    EXPECT_EQ(ran(), pathOf("Do Not Disturb on"));
}

TEST_F(ShortcutsToolTest, ABrokenShortcutOfTheUserIsNotReplacedByABundledOne) {
    add("Do Not Disturb on");
    std::FILE* const file = std::fopen(pathOf("Do Not Disturb on").constData(), "w");
    std::fputs("no first line that names an interpreter\n", file);
    std::fclose(file);
    EXPECT_EQ(runShortcut(QStringLiteral("Do Not Disturb on")), 66);
}

TEST_F(ShortcutsToolTest, BundledOnesSucceedSilentlyWithoutADesktop) {
    const tests::EnvironmentVariable bus("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const char* name : {"Do Not Disturb on", "Do Not Disturb off"}) {
        EXPECT_EQ(runShortcut(QString::fromUtf8(name)), 0);
        EXPECT_EQ(m_printed, "");
    }
}

TEST_F(ShortcutsToolTest, ExitStatusIsTheShortcuts) {
    add("fails", "exit 7\n");
    EXPECT_EQ(runShortcut(QStringLiteral("fails")), 7);
}

TEST_F(ShortcutsToolTest, FileThatTheSystemCannotStartIsNotHandedToAShell) {
    add("odd");
    std::FILE* const file = std::fopen(pathOf("odd").constData(), "w");
    std::fputs(": >\"${0%/*}/.ran\"\n", file); // no first line that names an interpreter
    std::fclose(file);
    EXPECT_EQ(runShortcut(QStringLiteral("odd")), 66);
    EXPECT_FALSE(QFile::exists(folder() + QStringLiteral("/.ran")));
}

TEST_F(ShortcutsToolTest, OtherVerbsAreWrongUse) {
    EXPECT_EQ(tool({}), 64);
    EXPECT_EQ(tool({QStringLiteral("list"), QStringLiteral("more")}), 64);
    EXPECT_EQ(tool({QStringLiteral("run")}), 64);
    EXPECT_EQ(tool({QStringLiteral("erase"), QStringLiteral("all")}), 64);
}

TEST_F(ShortcutsToolTest, SessionsRunWhatTheListOffered) {
    add("Quiet \"now\" ");
    fakes::MemoryPreferences preferences;
    PosixProcessRunner runner(QProcessEnvironment::systemEnvironment());
    FocusLink link(preferences, runner, qEnvironmentVariable("VANTLE_SHORTCUTS"));
    QStringList names;
    link.listShortcuts([&](const QStringList& told) { names = told; });
    ASSERT_TRUE(tests::await([&] { return !names.isEmpty(); }));
    settings::focusLinked.write(preferences, true);
    settings::startShortcut.write(preferences, names.first());
    link.sessionStarted();
    EXPECT_TRUE(tests::await([&] { return ran() == pathOf("Quiet \"now\" "); }));
}

} // namespace
} // namespace vantle
