#include "platform/posix/PosixProcessRunner.h"

#include "support/Await.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <unistd.h>

namespace vantle {
namespace {

using Output = ProcessRunner::Output;

using tests::text;
Command shell(const char* script, const QStringList& more = {}) {
    return {text("/bin/sh"), QStringList{text("-c"), text(script)} + more};
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The children of this process, unreaped ones included.
QList<QByteArray> children() {
    const QByteArray self = QByteArray::number(::getpid());
    const QByteArray all =
        contentOf(text("/proc/self/task/") + text(self.constData()) + text("/children"));
    return all.simplified().isEmpty() ? QList<QByteArray>() : all.simplified().split(' ');
}

class PosixProcessRunnerTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<Output> collected(const Command& command) {
        std::optional<Output> result;
        bool told = false;
        m_runner->collect(command, [&](std::optional<Output> output) {
            told = true;
            result = std::move(output);
        });
        EXPECT_FALSE(told) << "within the call";
        EXPECT_TRUE(tests::await([&] { return told; }));
        return result;
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(text(name)); }

    QTemporaryDir m_folder;
    std::unique_ptr<PosixProcessRunner> m_runner =
        std::make_unique<PosixProcessRunner>(QProcessEnvironment::systemEnvironment());
};

TEST_F(PosixProcessRunnerTest, ArgumentsArriveAsTheyStand) {
    const QStringList arguments{text(" two  blanks "), text("\"quotes\" 'and' $HOME `x` *"),
                                QString(), text("line\nfeed")};
    const auto output = collected({text("/usr/bin/printf"), QStringList{text("[%s]")} + arguments});
    ASSERT_TRUE(output);
    EXPECT_EQ(QString::fromUtf8(output->standardOutput),
              QLatin1Char('[') + arguments.join(text("][")) + QLatin1Char(']'));
}

TEST_F(PosixProcessRunnerTest, CommandThatPrintsWithoutEndIsEnded) {
    EXPECT_FALSE(collected({text("/usr/bin/yes"), {}}));
    EXPECT_TRUE(children().isEmpty());
}

TEST_F(PosixProcessRunnerTest, CommandReadsNothingOfOurs) {
    const auto output = collected({text("/bin/cat"), {}});
    ASSERT_TRUE(output);
    EXPECT_EQ(output->standardOutput, "");
}

TEST_F(PosixProcessRunnerTest, CollectedCommandEndsWithTheRunner) {
    bool told = false;
    m_runner->collect({text("/bin/sleep"), {text("1000")}}, [&](const auto&) { told = true; });
    EXPECT_TRUE(tests::await([] { return children().size() == 1; }));
    m_runner.reset();
    EXPECT_TRUE(children().isEmpty());
    EXPECT_FALSE(told);
}

TEST_F(PosixProcessRunnerTest, DetachedCommandsLeaveNoChildAndNothingWaits) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(m_runner->startDetached(shell("exit 1")));
    EXPECT_TRUE(m_runner->startDetached(
        shell("echo $$ >\"$0.new\"; mv \"$0.new\" \"$0\"; exec sleep 1000", {path("pid")})));
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_TRUE(children().isEmpty());

    EXPECT_TRUE(tests::await([&] { return QFile::exists(path("pid")); }));
    const pid_t sleeper = contentOf(path("pid")).trimmed().toInt();
    ASSERT_GT(sleeper, 1);
    m_runner.reset();
    EXPECT_EQ(::kill(sleeper, 0), 0) << "outlives the runner";
    ::kill(sleeper, SIGKILL);
}

TEST_F(PosixProcessRunnerTest, OutputOfADetachedCommandBlocksNothing) {
    // Ten times what a pipe holds; an unread pipe would block it.
    ASSERT_TRUE(m_runner->startDetached(shell(
        "head -c 700000 /dev/zero; head -c 700000 /dev/zero >&2; : >\"$0\"", {path("done")})));
    EXPECT_TRUE(tests::await([&] { return QFile::exists(path("done")); }));
}

TEST_F(PosixProcessRunnerTest, DetachedCommandThatCannotStartLeavesNoChild) {
    EXPECT_FALSE(m_runner->startDetached({text("/nowhere/tool"), {}}));
    EXPECT_TRUE(children().isEmpty());
}

TEST_F(PosixProcessRunnerTest, CommandsFindTheEnvironmentThatTheyAreGivenAndNoOther) {
    QProcessEnvironment environment;
    environment.insert(text("FROM"), text("the session"));
    m_runner = std::make_unique<PosixProcessRunner>(environment);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const auto output = collected({text("/usr/bin/env"), {}});
    ASSERT_TRUE(output);
    EXPECT_EQ(output->standardOutput, "FROM=the session\n");
    ASSERT_TRUE(m_runner->startDetached(
        shell("/usr/bin/env >\"$0.new\"; /bin/mv \"$0.new\" \"$0\"", {path("seen")})));
    ASSERT_TRUE(tests::await([&] { return QFile::exists(path("seen")); }));
    EXPECT_TRUE(contentOf(path("seen")).contains("FROM=the session\n"));
    EXPECT_FALSE(contentOf(path("seen")).contains("QT_QPA_PLATFORM"));
}

} // namespace
} // namespace vantle
