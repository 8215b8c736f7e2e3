#include "platform/session/BusGreeting.h"

#include <QList>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vantle {

namespace {

struct SocketName {
    sockaddr_un address{};
    socklen_t length = 0;
};

/// Returns the local socket of one alternative of an address; empty for another transport.
std::optional<SocketName> socketName(const QByteArray& alternative) {
    static constexpr char kTransport[] = "unix:";
    if (!alternative.startsWith(kTransport)) return std::nullopt;
    for (const QByteArray& pair : alternative.mid(sizeof kTransport - 1).split(',')) {
        const auto equals = pair.indexOf('=');
        const QByteArray key = pair.left(equals);
        const bool isAbstract = key == "abstract";
        if (equals < 0 || (key != "path" && !isAbstract)) continue;
        // An abstract name starts with a zero byte and ends with its length; a path ends with a
        // zero byte.
        const QByteArray value = QByteArray::fromPercentEncoding(pair.mid(equals + 1));
        const QByteArray name = isAbstract ? '\0' + value : value + '\0';
        SocketName socket;
        if (static_cast<std::size_t>(name.size()) > sizeof socket.address.sun_path) continue;
        socket.address.sun_family = AF_UNIX;
        std::memcpy(socket.address.sun_path, name.constData(),
                    static_cast<std::size_t>(name.size()));
        socket.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) +
                        static_cast<socklen_t>(name.size());
        return socket;
    }
    return std::nullopt;
}

} // namespace

BusGreeting::BusGreeting(const QByteArray& address) { greet(address); }

BusGreeting::~BusGreeting() { conclude(m_answer); }

void BusGreeting::greet(const QByteArray& address) {
    std::optional<SocketName> socketToTry;
    for (const QByteArray& alternative : address.split(';')) {
        socketToTry = socketName(alternative);
        if (socketToTry) break;
    }
    if (!socketToTry) return;
    m_answer = Answer::Absent;
    m_descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (m_descriptor < 0) return;
    const auto* name = reinterpret_cast<const sockaddr*>(&socketToTry->address);
    // A local connect() succeeds at once or fails: EAGAIN means that the backlog is full.
    if (connect(m_descriptor, name, socketToTry->length) != 0) {
        conclude(errno == EAGAIN ? Answer::Waiting : Answer::Absent);
        return;
    }
    const QByteArray hello =
        QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(getuid()).toHex() + "\r\n";
    const auto sent =
        send(m_descriptor, hello.constData(), static_cast<std::size_t>(hello.size()), MSG_NOSIGNAL);
    if (sent == hello.size())
        m_answer = Answer::Waiting;
    else
        conclude(Answer::Absent);
}

BusGreeting::Answer BusGreeting::conclude(Answer answer) {
    if (m_descriptor >= 0) close(m_descriptor);
    m_descriptor = -1;
    return m_answer = answer;
}

BusGreeting::Answer BusGreeting::answer() {
    if (m_descriptor < 0) return m_answer;
    char byte = 0;
    const auto received = recv(m_descriptor, &byte, 1, MSG_DONTWAIT);
    if (received > 0) return conclude(Answer::Answers);
    if (received < 0 && (errno == EAGAIN || errno == EINTR)) return m_answer;
    return conclude(Answer::Absent);
}

BusGreeting::Answer BusGreeting::waitForAnswer(int limitMs) {
    if (answer() != Answer::Waiting || m_descriptor < 0) return m_answer;
    pollfd wanted{m_descriptor, POLLIN, 0};
    (void)poll(&wanted, 1, limitMs);
    return answer();
}

} // namespace vantle
