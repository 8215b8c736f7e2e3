// One request to a server behind a UNIX socket, and its response.
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

/// Whether a socket of this person stands at the path; what is told to the server of another would
/// be theirs to read. Symbolic links are followed.
[[nodiscard]] bool isSocketOf(uid_t person, const QString& path);

/// Connects, sends, and collects the response. Main thread; waits for nothing. Destroy it to hang
/// up, also within `done`.
class SocketExchange {
public:
    /// Nothing when the server can't be reached, runs for another person, speaks no HTTP, sends too
    /// much or takes longer than `patience`.
    using Done = std::function<void(std::optional<HttpResponse>)>;

    struct Request {
        QString path; ///< of the socket
        uid_t person; ///< for whom the server has to run
        QByteArray bytes;
        Seconds patience;
    };

    /// Begins at once. `done` is called once, from the event loop. `owner` gets the socket as a
    /// child, which goes with a later turn of the event loop, or with the owner.
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
