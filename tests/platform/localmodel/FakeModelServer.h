// A model server behind a socket, which says what the test tells it to.
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace vantle::tests {

class FakeModelServer {
public:
    explicit FakeModelServer(const QString& path) {
        m_server.listen(path);
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            auto* const socket = m_server.nextPendingConnection();
            ++connections;
            QObject::connect(socket, &QLocalSocket::disconnected, socket, [this] { ++hungUp; });
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
                m_received += socket->readAll();
                if (!isWhole(m_received)) return;
                requests.push_back(std::exchange(m_received, {}));
                if (onRequest) onRequest(*socket);
            });
        });
    }

    [[nodiscard]] static QByteArray response(const QByteArray& body,
                                             const QByteArray& status = "200 OK") {
        return "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nContent-Length: " +
               QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }
    [[nodiscard]] static QByteArray saying(const QString& text) {
        const QJsonObject message{{QStringLiteral("role"), QStringLiteral("assistant")},
                                  {QStringLiteral("content"), text}};
        const QJsonArray choices{QJsonObject{{QStringLiteral("message"), message}}};
        return response(QJsonDocument(QJsonObject{{QStringLiteral("choices"), choices}}).toJson());
    }
    /// The messages of the n-th request, as "role: text".
    [[nodiscard]] QStringList messages(std::size_t n) const {
        QStringList texts;
        const QByteArray& request = requests.at(n);
        const auto body = QJsonDocument::fromJson(request.sliced(request.indexOf("\r\n\r\n") + 4));
        for (const QJsonValue item : body.object()[QLatin1String("messages")].toArray())
            texts += item.toObject()[QLatin1String("role")].toString() + QLatin1String(": ") +
                     item.toObject()[QLatin1String("content")].toString();
        return texts;
    }

    std::function<void(QLocalSocket&)> onRequest; ///< without one it never answers
    std::vector<QByteArray> requests;
    int connections = 0;
    int hungUp = 0;

private:
    static bool isWhole(const QByteArray& request) {
        const qsizetype head = request.indexOf("\r\n\r\n");
        if (head < 0) return false;
        const QByteArray key = "Content-Length: ";
        const qsizetype at = request.indexOf(key) + key.size();
        const auto length = request.sliced(at, request.indexOf("\r\n", at) - at).toLongLong();
        return request.size() >= head + 4 + length;
    }

    QLocalServer m_server;
    QByteArray m_received;
};

} // namespace vantle::tests
