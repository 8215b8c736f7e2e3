#include "platform/localmodel/SocketExchange.h"

#include <QFile>

#include <sys/socket.h>
#include <sys/stat.h>
#include <utility>

namespace vantle {

namespace {

/// Compares the listening user as the kernel recorded it, which no file put in the socket's place
/// later can change.
bool serverRunsFor(uid_t person, const QLocalSocket& socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    const auto descriptor = static_cast<int>(socket.socketDescriptor());
    if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return false;
    return peer.uid == person;
}

} // namespace

bool isSocketOf(uid_t person, const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) return false;
    return S_ISSOCK(status.st_mode) && status.st_uid == person;
}

SocketExchange::SocketExchange(Request request, Scheduler& scheduler, QObject& owner, Done done)
    : m_socket(new QLocalSocket(&owner))
    , m_request(std::move(request))
    , m_done(std::move(done)) {
    m_deadline = scheduler.scheduleOnce(m_request.patience, [this] { tell(std::nullopt); });
    // Queued, since both may happen inside the call that connects.
    QObject::connect(
        m_socket, &QLocalSocket::connected, &m_context, [this] { send(); }, Qt::QueuedConnection);
    QObject::connect(
        m_socket, &QLocalSocket::errorOccurred, &m_context,
        [this](QLocalSocket::LocalSocketError error) { takeEnd(error); }, Qt::QueuedConnection);
    QObject::connect(m_socket, &QLocalSocket::readyRead, &m_context, [this] { read(); });
    m_socket->connectToServer(m_request.path);
}

SocketExchange::~SocketExchange() {
    m_socket->disconnect(); // no more callbacks
    m_socket->abort();
    m_socket->deleteLater(); // it may be what is calling
}

void SocketExchange::send() {
    if (!serverRunsFor(m_request.person, *m_socket)) return tell(std::nullopt);
    m_socket->write(m_request.bytes);
}

void SocketExchange::read() { takeState(m_response.take(m_socket->readAll())); }

void SocketExchange::takeEnd(QLocalSocket::LocalSocketError error) {
    if (error != QLocalSocket::PeerClosedError) return tell(std::nullopt);
    takeState(m_response.finish());
}

void SocketExchange::takeState(HttpResponse::State state) {
    if (state == HttpResponse::State::Complete) return tell(std::move(m_response));
    if (state == HttpResponse::State::Broken) tell(std::nullopt);
}

void SocketExchange::tell(std::optional<HttpResponse> response) {
    const Done done = std::exchange(m_done, {});
    if (!done) return;
    m_deadline.reset();
    m_socket->disconnect();
    m_socket->abort();
    done(std::move(response)); // may end this
}

} // namespace vantle
