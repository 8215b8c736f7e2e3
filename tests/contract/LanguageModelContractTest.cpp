// What every language model promises.
#include "contract/Contract.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/VirtualTime.h"
#include "platform/localmodel/FakeModelServer.h"
#include "platform/localmodel/SocketLanguageModel.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/Await.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QFile>
#include <QTemporaryDir>

#include <deque>
#include <vector>

namespace vantle {
namespace {

using tests::text;

/// A model on the user's machine, and who answers for it.
class ModelWorld {
public:
    virtual ~ModelWorld() = default;
    [[nodiscard]] virtual LanguageModel& model() = 0;
    virtual void takeModelAway() = 0;
    /// What is answered to the next questions, in their order; nothing for a failure.
    virtual void willAnswer(std::deque<std::optional<QString>> answers) = 0;
    /// Lets the model work until the condition holds; false when it never does.
    [[nodiscard]] virtual bool workUntil(const std::function<bool()>& condition) = 0;
    /// Lets the model work for what must not happen.
    virtual void workOn() = 0;
};

class FakeWorld final : public ModelWorld {
public:
    [[nodiscard]] LanguageModel& model() override { return m_model; }
    void takeModelAway() override { m_model.available = false; }
    void willAnswer(std::deque<std::optional<QString>> answers) override {
        m_answers = std::move(answers);
    }
    [[nodiscard]] bool workUntil(const std::function<bool()>& condition) override {
        while (!condition()) {
            if (m_model.waiting() == 0) return false;
            std::optional<QString> answer;
            if (!m_answers.empty()) {
                answer = m_answers.front();
                m_answers.pop_front();
            }
            (void)m_model.answer(answer);
        }
        return true;
    }
    void workOn() override {
        (void)workUntil([] { return false; });
    }

private:
    fakes::FakeLanguageModel m_model;
    std::deque<std::optional<QString>> m_answers;
};

class SocketWorld final : public ModelWorld {
public:
    SocketWorld() {
        QFile settings(m_folder.filePath(text("language-model.conf")));
        EXPECT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write("socket=" + QFile::encodeName(socketPath()));
        m_server->onRequest = [this](QLocalSocket& socket) {
            std::optional<QString> answer;
            if (!m_answers.empty()) {
                answer = m_answers.front();
                m_answers.pop_front();
            }
            socket.write(answer ? tests::FakeModelServer::saying(*answer) : "garbage\n");
        };
    }

    [[nodiscard]] LanguageModel& model() override { return m_model; }
    void takeModelAway() override { m_server.reset(); }
    void willAnswer(std::deque<std::optional<QString>> answers) override {
        m_answers = std::move(answers);
    }
    [[nodiscard]] bool workUntil(const std::function<bool()>& condition) override {
        return tests::await([&] {
            m_time.advance(0);
            return condition();
        });
    }
    void workOn() override {
        tests::runFor(50);
        m_time.advance(1000);
    }

private:
    [[nodiscard]] QString socketPath() const { return m_folder.filePath(text("model.sock")); }

    const QTemporaryDir m_folder;
    PosixFileSystem m_files;
    fakes::VirtualTime m_time;
    std::deque<std::optional<QString>> m_answers;
    std::unique_ptr<tests::FakeModelServer> m_server =
        std::make_unique<tests::FakeModelServer>(socketPath());
    SocketLanguageModel m_model{m_files, m_folder.filePath(text("language-model.conf")), m_time};
};

class LanguageModelContract : public contract::Contract<ModelWorld> {
protected:
    void ask(const char* prompt) {
        const std::size_t before = m_told.size();
        m_session->respond(text(prompt), [this](std::optional<QString> answer) {
            m_told.push_back(std::move(answer));
        });
        EXPECT_EQ(m_told.size(), before) << "within the call";
    }
    [[nodiscard]] bool awaitAnswers(std::size_t count) {
        return world().workUntil([=, this] { return m_told.size() == count; });
    }

    std::unique_ptr<LanguageModelSession> m_session =
        world().model().openSession(text("Be short."));
    std::vector<std::optional<QString>> m_told;
};

using Answers = std::vector<std::optional<QString>>;

INSTANTIATE_TEST_SUITE_P(, LanguageModelContract,
                         testing::Values(contract::maker<ModelWorld, FakeWorld>("Fake"),
                                         contract::maker<ModelWorld, SocketWorld>("Socket")),
                         contract::kByName);

TEST_P(LanguageModelContract, AnswersEachQuestionOnceAndInItsOrder) {
    world().willAnswer({text("Because."), text("So.")});
    ask("Why?");
    ASSERT_TRUE(awaitAnswers(1));
    ask("Shorter.");
    ASSERT_TRUE(awaitAnswers(2));
    world().workOn();
    EXPECT_EQ(m_told, (Answers{text("Because."), text("So.")}));
}

TEST_P(LanguageModelContract, FailureIsNoAnswerAndTheNextQuestionMayStillHaveOne) {
    world().willAnswer({std::nullopt, text("So.")});
    ask("Why?");
    ASSERT_TRUE(awaitAnswers(1));
    ask("Why?");
    ASSERT_TRUE(awaitAnswers(2));
    EXPECT_EQ(m_told, (Answers{std::nullopt, text("So.")}));
}

TEST_P(LanguageModelContract, NextQuestionMayBePutWithinAnAnswer) {
    world().willAnswer({text("Because."), text("So.")});
    m_session->respond(text("Why?"), [this](const auto&) { ask("Shorter."); });
    ASSERT_TRUE(awaitAnswers(1));
    EXPECT_EQ(m_told, Answers{text("So.")});
}

TEST_P(LanguageModelContract, SessionThatIsDroppedIsNotAnswered) {
    world().willAnswer({text("Because.")});
    ask("Why?");
    m_session.reset();
    world().workOn();
    EXPECT_TRUE(m_told.empty());
}

TEST_P(LanguageModelContract, SessionMayBeDroppedWithinItsAnswer) {
    world().willAnswer({text("Because.")});
    bool told = false;
    m_session->respond(text("Why?"), [&](const auto&) {
        m_session.reset();
        told = true;
    });
    EXPECT_TRUE(world().workUntil([&] { return told; }));
}

TEST_P(LanguageModelContract, ModelThatWentAwayIsNotAvailableAndAnswersNothing) {
    EXPECT_TRUE(world().model().isAvailable());
    world().willAnswer({text("Because.")});
    world().takeModelAway();
    EXPECT_FALSE(world().model().isAvailable());
    m_session = world().model().openSession(text("Be short."));
    ask("Why?");
    ASSERT_TRUE(awaitAnswers(1));
    EXPECT_EQ(m_told, Answers{std::nullopt});
}

TEST_P(LanguageModelContract, TwoSessionsAreAnsweredEachForItself) {
    world().willAnswer({text("One."), text("Two.")});
    ask("Why?");
    ASSERT_TRUE(awaitAnswers(1));
    const auto other = world().model().openSession(text("Be long."));
    std::optional<QString> told;
    other->respond(text("How?"), [&](std::optional<QString> answer) { told = std::move(answer); });
    EXPECT_TRUE(world().workUntil([&] { return told.has_value(); }));
    EXPECT_EQ(told, text("Two."));
    EXPECT_EQ(m_told, Answers{text("One.")});
}

} // namespace
} // namespace vantle
