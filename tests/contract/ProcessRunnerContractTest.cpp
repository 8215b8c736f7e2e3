// What everything that runs other programs promises.
#include "contract/Contract.h"
#include "fakes/FakeProcessRunner.h"
#include "platform/posix/PosixProcessRunner.h"
#include "support/Await.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <optional>
#include <vector>

namespace vantle {
namespace {

using Output = ProcessRunner::Output;
using tests::text;

/// Programs that do one thing each.
class ProcessWorld {
public:
    virtual ~ProcessWorld() = default;
    [[nodiscard]] virtual ProcessRunner& runner() = 0;
    virtual void endRunner() = 0;
    /// Prints the text, then ends with the status.
    [[nodiscard]] virtual Command printing(const QString& output, int status) = 0;
    [[nodiscard]] virtual Command printing(qint64 bytes) = 0;
    [[nodiscard]] virtual Command missing() = 0;
    [[nodiscard]] virtual Command killed() = 0;
    /// Lets programs run until the condition holds; false when it never does.
    [[nodiscard]] virtual bool runUntil(const std::function<bool()>& condition) = 0;
    /// Lets programs run for what must not happen.
    virtual void runOn() = 0;
};

class FakeWorld final : public ProcessWorld {
public:
    [[nodiscard]] ProcessRunner& runner() override { return *m_runner; }
    void endRunner() override { m_runner.reset(); }
    [[nodiscard]] Command printing(const QString& output, int status) override {
        return {text("/bin/print"), {output, QString::number(status)}};
    }
    [[nodiscard]] Command printing(qint64 bytes) override {
        return printing(QString(bytes, QLatin1Char('x')), 0);
    }
    [[nodiscard]] Command missing() override {
        m_runner->canStart = false;
        return {text("/nowhere/tool"), {}};
    }
    [[nodiscard]] Command killed() override { return {text("/bin/crash"), {}}; }
    [[nodiscard]] bool runUntil(const std::function<bool()>& condition) override {
        while (!condition()) {
            if (!m_runner || m_ended == m_runner->collected.size()) return false;
            const Command command = m_runner->collected[m_ended++];
            if (command.program == text("/bin/print"))
                m_runner->end(Output{command.arguments[1].toInt(), command.arguments[0].toUtf8()});
            else
                m_runner->end(std::nullopt);
        }
        return true;
    }
    void runOn() override {
        (void)runUntil([] { return false; });
    }

private:
    std::optional<fakes::FakeProcessRunner> m_runner{std::in_place};
    std::size_t m_ended = 0;
};

class PosixWorld final : public ProcessWorld {
public:
    [[nodiscard]] ProcessRunner& runner() override { return *m_runner; }
    void endRunner() override { m_runner.reset(); }
    [[nodiscard]] Command printing(const QString& output, int status) override {
        return {text("/bin/sh"),
                {text("-c"), text("printf %s \"$0\"; echo noise >&2; exit $1"), output,
                 QString::number(status)}};
    }
    [[nodiscard]] Command printing(qint64 bytes) override {
        return {text("/usr/bin/head"), {text("-c"), QString::number(bytes), text("/dev/zero")}};
    }
    [[nodiscard]] Command missing() override { return {text("/nowhere/tool"), {}}; }
    [[nodiscard]] Command killed() override {
        return {text("/bin/sh"), {text("-c"), text("kill -KILL $$")}};
    }
    [[nodiscard]] bool runUntil(const std::function<bool()>& condition) override {
        return tests::await(condition);
    }
    void runOn() override { tests::runFor(100); }

private:
    std::optional<PosixProcessRunner> m_runner{std::in_place,
                                               QProcessEnvironment::systemEnvironment()};
};

class ProcessRunnerContract : public contract::Contract<ProcessWorld> {
protected:
    /// The end of each command that was collected, in the order in which they were told.
    std::vector<std::optional<Output>> m_told;

    void collect(const Command& command) {
        const std::size_t before = m_told.size();
        world().runner().collect(
            command, [this](std::optional<Output> output) { m_told.push_back(std::move(output)); });
        EXPECT_EQ(m_told.size(), before) << "within the call";
    }
    [[nodiscard]] std::optional<Output> collected(const Command& command) {
        m_told.clear();
        collect(command);
        EXPECT_TRUE(world().runUntil([this] { return !m_told.empty(); }));
        world().runOn();
        EXPECT_EQ(m_told.size(), 1U) << "once";
        return m_told.empty() ? std::nullopt : m_told.front();
    }
};

INSTANTIATE_TEST_SUITE_P(, ProcessRunnerContract,
                         testing::Values(contract::maker<ProcessWorld, FakeWorld>("Fake"),
                                         contract::maker<ProcessWorld, PosixWorld>("Posix")),
                         contract::kByName);

TEST_P(ProcessRunnerContract, CollectsWhatACommandPrintsAndItsExitStatus) {
    const auto output = collected(world().printing(text("one\ntwo"), 3));
    ASSERT_TRUE(output);
    EXPECT_EQ(output->standardOutput, "one\ntwo");
    EXPECT_EQ(output->exitStatus, 3);
}

TEST_P(ProcessRunnerContract, MissingProgramAndOneThatIsKilledGiveNothing) {
    EXPECT_EQ(collected(world().killed()), std::nullopt);
    EXPECT_EQ(collected(world().missing()), std::nullopt);
}

TEST_P(ProcessRunnerContract, CommandMayPrintUpToTheBound) {
    const auto most = collected(world().printing(ProcessRunner::kMaxOutput));
    ASSERT_TRUE(most);
    EXPECT_EQ(most->standardOutput.size(), ProcessRunner::kMaxOutput);
    EXPECT_EQ(collected(world().printing(ProcessRunner::kMaxOutput + 1)), std::nullopt);
}

TEST_P(ProcessRunnerContract, EachOfTwoCommandsHasItsOwnOutput) {
    collect(world().printing(text("one"), 0));
    collect(world().printing(text("two"), 0));
    ASSERT_TRUE(world().runUntil([this] { return m_told.size() == 2; }));
    QStringList outputs;
    for (const auto& output : m_told)
        outputs += QString::fromUtf8(output.value_or(Output{}).standardOutput);
    outputs.sort();
    EXPECT_EQ(outputs, (QStringList{text("one"), text("two")}));
}

TEST_P(ProcessRunnerContract, TheNextCommandMayBeCollectedInTheCallbackOfTheLast) {
    world().runner().collect(world().printing(text("one"), 0),
                             [this](const auto&) { collect(world().printing(text("two"), 0)); });
    ASSERT_TRUE(world().runUntil([this] { return m_told.size() == 1; }));
    EXPECT_EQ(m_told.front()->standardOutput, "two");
}

TEST_P(ProcessRunnerContract, RunnerThatGoesFirstTellsNothing) {
    collect(world().printing(text("one"), 0));
    world().endRunner();
    world().runOn();
    EXPECT_TRUE(m_told.empty());
}

TEST_P(ProcessRunnerContract, RunnerMayEndInTheCallbackOfItsCommand) {
    bool told = false;
    world().runner().collect(world().printing(text("one"), 0), [&](const auto&) {
        world().endRunner();
        told = true;
    });
    EXPECT_TRUE(world().runUntil([&] { return told; }));
}

TEST_P(ProcessRunnerContract, TellsWhetherADetachedCommandCouldBeStarted) {
    EXPECT_TRUE(world().runner().startDetached(world().printing(text("one"), 1)));
    EXPECT_FALSE(world().runner().startDetached(world().missing()));
}

} // namespace
} // namespace vantle
