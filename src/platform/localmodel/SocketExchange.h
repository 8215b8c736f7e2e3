// A request to a server on a UNIX socket, with its response.
#pragma once

#include "base/Scheduler.h"
#include "platform/localmodel/HttpResponse.h"

#include <QLocalSocket>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <sys/types.h>

namespace vantle {

/// Whether the user's own socket is at the path: the owner of any other server could read the
/// request. Follows symbolic links. Any thread.
[[nodiscard]] bool isSocketOf(uid_t person, const QString& path);

/// Connects, sends and collects the response, without blocking. Destroying it, also inside `done`,
/// closes the connection. Main thread.
class SocketExchange {
public:
    /// Empty when the server cannot be reached, runs for another user, does not speak HTTP, sends
    /// too much, or takes longer than `patience`.
    using Done = std::function<void(std::optional<HttpResponse>)>;

    struct Request {
        QString path; ///< of the socket
        uid_t person; ///< for whom the server has to run
        QByteArray bytes;
        Seconds patience;
    };

    /// Starts immediately. Calls `done` once, from the event loop. `owner` gets the socket as a
    /// child, which is deleted in a later turn of the event loop, or with the owner.
    SocketExchange(Request request, Scheduler& scheduler, QObject& owner, Done done);
    ~SocketExchange();
    SocketExchange(const SocketExchange&) = delete;
    SocketExchange& operator=(const SocketExchange&) = delete;

private:
    void send();
    void read();
    void takeEnd(QLocalSocket::LocalSocketError error);
    void takeState(HttpResponse::State state);
    void tell(std::optional<HttpResponse> response);

    QObject m_context;            ///< queued signals of the socket end with this
    QLocalSocket* const m_socket; ///< owned, through its parent
    const Request m_request;
    HttpResponse m_response;
    Done m_done;
    TimerHandle m_deadline;
};

} // namespace vantle
