#include "platform/localmodel/SocketLanguageModel.h"

#include "fakes/VirtualTime.h"
#include "platform/localmodel/FakeModelServer.h"
#include "platform/localmodel/SocketExchange.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/Await.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::Optional;
using tests::FakeModelServer;

QString q(const char* text) { return QString::fromUtf8(text); }

class SocketLanguageModelTest : public testing::Test {
protected:
    SocketLanguageModelTest() { configure("socket=" + QFile::encodeName(socketPath())); }

    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(q(name)); }
    [[nodiscard]] QString socketPath() const { return path("model.sock"); }

    void configure(const QByteArray& content) const {
        QFile file(path("language-model.conf"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void startServer() { m_server = std::make_unique<FakeModelServer>(socketPath()); }
    /// A server that answers every request with these bytes, and hangs up where that is asked for.
    void startServer(const QByteArray& bytes, bool hangsUp = false) {
        startServer();
        m_server->onRequest = [=](QLocalSocket& socket) {
            socket.write(bytes);
            if (hangsUp) socket.disconnectFromServer();
        };
    }

    void ask(LanguageModelSession& session, const char* prompt = "Why?") {
        session.respond(q(prompt), [this](std::optional<QString> text) {
            ++m_told;
            m_answer = std::move(text);
        });
        EXPECT_EQ(m_told, 0) << "within the call";
    }
    /// What a new session answers.
    std::optional<QString> answerOf() {
        m_told = 0;
        const auto session = m_model.openSession(q("Be short."));
        ask(*session);
        m_time.advance(0);
        EXPECT_TRUE(tests::await([this] { return m_told > 0; }));
        return m_answer;
    }
    /// Whether the server is asked, so that the rest can be left to the virtual time.
    [[nodiscard]] bool serverIsAsked() const {
        return tests::await([this] { return !m_server->requests.empty(); });
    }

    QTemporaryDir m_folder;
    PosixFileSystem m_files;
    fakes::VirtualTime m_time;
    std::unique_ptr<FakeModelServer> m_server;
    SocketLanguageModel m_model{m_files, path("language-model.conf"), m_time};
    int m_told = 0;
    std::optional<QString> m_answer;
};

TEST_F(SocketLanguageModelTest, WithoutTheFileThereIsNoneAndNothingIsDone) {
    startServer();
    QFile::remove(path("language-model.conf"));
    EXPECT_FALSE(m_model.isAvailable());
    EXPECT_EQ(m_time.timerCount(), 0u) << "nothing is looked at again by itself";
    EXPECT_EQ(answerOf(), std::nullopt);
    EXPECT_EQ(m_server->connections, 0);
}

TEST_F(SocketLanguageModelTest, FileThatNamesASocketOfTheUserMakesItAvailable) {
    EXPECT_FALSE(m_model.isAvailable()) << "no socket yet";
    startServer();
    EXPECT_TRUE(m_model.isAvailable());
    EXPECT_EQ(m_server->connections, 0) << "to ask is free";
    m_server.reset();
    EXPECT_FALSE(m_model.isAvailable()) << "it went with its server";
}

TEST_F(SocketLanguageModelTest, OtherFilesInItsPlaceAreNoSockets) {
    QFile file(socketPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(m_model.isAvailable());
    EXPECT_EQ(answerOf(), std::nullopt);
    configure("socket=" + QFile::encodeName(m_folder.path()));
    EXPECT_FALSE(m_model.isAvailable()) << "a directory";
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("fifo")).constData(), 0600), 0);
    configure("socket=" + QFile::encodeName(path("fifo")));
    EXPECT_FALSE(m_model.isAvailable());
}

TEST_F(SocketLanguageModelTest, SocketOfAnotherPersonIsNotUsed) {
    startServer(FakeModelServer::saying(q("Yes.")));
    const SocketLanguageModel others(m_files, path("language-model.conf"), m_time, ::geteuid() + 1);
    EXPECT_FALSE(others.isAvailable());
    EXPECT_TRUE(m_model.isAvailable());
    EXPECT_EQ(m_server->connections, 0);
}

TEST_F(SocketLanguageModelTest, ServerOfAnotherPersonBehindTheSocketIsToldNothing) {
    startServer(FakeModelServer::saying(q("Yes.")));
    QObject owner;
    bool told = false;
    const SocketExchange exchange({socketPath(), ::geteuid() + 1, "GET", Seconds(1)}, m_time, owner,
                                  [&](const std::optional<HttpResponse>& response) {
                                      told = true;
                                      EXPECT_FALSE(response);
                                  });
    EXPECT_TRUE(tests::await([&] { return told && m_server->hungUp == 1; }));
    EXPECT_TRUE(m_server->requests.empty());
}

TEST_F(SocketLanguageModelTest, DamagedSettingsAreNone) {
    startServer();
    configure("socket=model.sock\n");
    EXPECT_FALSE(m_model.isAvailable());
    configure(QByteArray(1 << 20, '\n') + "socket=" + QFile::encodeName(socketPath()));
    EXPECT_FALSE(m_model.isAvailable());
    QFile::remove(path("language-model.conf"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("language-model.conf")).constData(), 0600), 0);
    EXPECT_FALSE(m_model.isAvailable()) << "and nobody waits for a writer";
}

TEST_F(SocketLanguageModelTest, AnswersWithWhatTheServerSays) {
    startServer(FakeModelServer::saying(q("You shipped caf\u00E9 \U0001F680.")));
    EXPECT_THAT(answerOf(), Optional(q("You shipped caf\u00E9 \U0001F680.")));
    EXPECT_EQ(m_server->messages(0), (QStringList{q("system: Be short."), q("user: Why?")}));
    EXPECT_EQ(m_time.timerCount(), 0u);
}

TEST_F(SocketLanguageModelTest, NamesTheModelOfTheFile) {
    configure("socket=" + QFile::encodeName(socketPath()) + "\nmodel=small\n");
    startServer(FakeModelServer::saying(q("Yes.")));
    EXPECT_THAT(answerOf(), Optional(q("Yes.")));
    EXPECT_TRUE(m_server->requests.at(0).contains("\"model\":\"small\""));
}

TEST_F(SocketLanguageModelTest, ResponseMayComeInChunksOrEndWithTheConnection) {
    const QByteArray body = "{\"choices\":[{\"message\":{\"content\":\"Yes.\"}}]}";
    startServer("HTTP/1.0 200 OK\r\n\r\n" + body, true);
    EXPECT_THAT(answerOf(), Optional(q("Yes.")));
    m_server.reset();
    startServer("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" +
                QByteArray::number(body.size(), 16) + "\r\n" + body + "\r\n0\r\n\r\n");
    EXPECT_THAT(answerOf(), Optional(q("Yes.")));
}

TEST_F(SocketLanguageModelTest, SecondQuestionIsAskedWithTheFirstAnswerInView) {
    startServer(FakeModelServer::saying(q("Because.")));
    const auto session = m_model.openSession(q("Be short."));
    std::vector<QString> answers;
    session->respond(q("Why?"), [&](const std::optional<QString>& first) {
        answers.push_back(first.value_or(QString()));
        session->respond(q("Shorter."), [&](const std::optional<QString>& second) {
            answers.push_back(second.value_or(QString()));
        });
    });
    EXPECT_TRUE(tests::await([&] { return answers.size() == 2; }));
    EXPECT_THAT(answers, ElementsAre(q("Because."), q("Because.")));
    EXPECT_EQ(m_server->messages(1), (QStringList{q("system: Be short."), q("user: Why?"),
                                                  q("assistant: Because."), q("user: Shorter.")}));
}

TEST_F(SocketLanguageModelTest, QuestionThatFailedIsNotToldAgain) {
    startServer("garbage\n");
    const auto session = m_model.openSession(q("Be short."));
    ask(*session, "Why?");
    EXPECT_TRUE(tests::await([this] { return m_told == 1; }));
    m_told = 0;
    ask(*session, "How?");
    EXPECT_TRUE(tests::await([this] { return m_told == 1; }));
    EXPECT_EQ(m_server->messages(1), (QStringList{q("system: Be short."), q("user: How?")}));
}

TEST_F(SocketLanguageModelTest, MalformedResponsesGiveNothing) {
    const QByteArray good = FakeModelServer::saying(q("Yes."));
    for (const QByteArray& bytes :
         {QByteArray("garbage\n"), QByteArray("HTTP/1.1 200 OK\r\n\r\n"),
          FakeModelServer::response("{\"choices\":[]}"), FakeModelServer::response("not json"),
          FakeModelServer::response("{\"choices\":[{\"message\":{\"content\":\"No.\"}}]}",
                                    "500 Internal Server Error"),
          good.chopped(1), QByteArray(4096, '\0')}) {
        startServer(bytes, true);
        EXPECT_EQ(answerOf(), std::nullopt) << bytes.left(60).toStdString();
        m_server.reset();
    }
}

TEST_F(SocketLanguageModelTest, ResponseWithoutEndIsCutOffAtTheBound) {
    startServer();
    m_server->onRequest = [](QLocalSocket& socket) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
        const auto pour = [&socket] { socket.write(QByteArray(1 << 16, 'x')); };
        QObject::connect(&socket, &QLocalSocket::bytesWritten, &socket, pour);
        pour();
    };
    EXPECT_EQ(answerOf(), std::nullopt);
    EXPECT_TRUE(tests::await([this] { return m_server->hungUp == 1; }));
}

TEST_F(SocketLanguageModelTest, ServerThatNeverAnswersIsLeftAfterThreeMinutes) {
    startServer();
    const auto session = m_model.openSession(q("Be short."));
    ask(*session);
    ASSERT_TRUE(serverIsAsked());
    m_time.advance(179.9);
    EXPECT_EQ(m_told, 0);
    m_time.advance(0.2);
    EXPECT_EQ(m_told, 1);
    EXPECT_EQ(m_answer, std::nullopt);
    EXPECT_TRUE(tests::await([this] { return m_server->hungUp == 1; }));
    EXPECT_EQ(m_time.timerCount(), 0u);
}

TEST_F(SocketLanguageModelTest, ServerThatNeverAcceptsIsLeftAfterThreeMinutes) {
    startServer();
    const auto session = m_model.openSession(q("Be short."));
    ask(*session); // the kernel connects; the server's event loop does not run
    m_time.advance(180);
    EXPECT_EQ(m_told, 1);
    EXPECT_EQ(m_answer, std::nullopt);
}

TEST_F(SocketLanguageModelTest, ServerThatHangsUpGivesNothing) {
    startServer({}, true);
    EXPECT_EQ(answerOf(), std::nullopt);
}

TEST_F(SocketLanguageModelTest, SocketWhoseServerIsGoneGivesNothing) {
    startServer();
    // The file outlives a server that is killed.
    ASSERT_TRUE(QFile::rename(socketPath(), path("kept.sock")));
    m_server.reset();
    configure("socket=" + QFile::encodeName(path("kept.sock")));
    EXPECT_TRUE(m_model.isAvailable()) << "only an answer would tell";
    EXPECT_EQ(answerOf(), std::nullopt);
}

TEST_F(SocketLanguageModelTest, DroppedSessionHangsUpWithoutAnAnswer) {
    startServer();
    auto session = m_model.openSession(q("Be short."));
    ask(*session);
    ASSERT_TRUE(serverIsAsked());
    session.reset();
    EXPECT_TRUE(tests::await([this] { return m_server->hungUp == 1; }));
    m_time.advance(1000);
    EXPECT_EQ(m_told, 0);
    EXPECT_EQ(m_time.timerCount(), 0u);
}

TEST_F(SocketLanguageModelTest, SessionMayBeDroppedBeforeItIsConnected) {
    startServer(FakeModelServer::saying(q("Yes.")));
    auto session = m_model.openSession(q("Be short."));
    ask(*session);
    session.reset();
    EXPECT_THAT(answerOf(), Optional(q("Yes.")));
    EXPECT_EQ(m_told, 1) << "of the second session";
}

} // namespace
} // namespace vantle
