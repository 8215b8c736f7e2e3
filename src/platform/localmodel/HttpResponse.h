// An incremental reader of a bounded HTTP/1.1 response.
//
// Reads what a local server returns for one POST: a status, headers, and a body that ends by
// length, by chunks, or with the connection. A plain value, any thread.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace vantle {

class HttpResponse {
public:
    /// The largest response in bytes, headers and chunk framing included.
    static constexpr qsizetype maxSize = 1 << 20;

    enum class State {
        Incomplete, ///< more is to come
        Complete,
        Broken, ///< not HTTP, too long, or cut off
    };

    /// Takes received bytes. Has no effect after the end.
    State take(QByteArrayView bytes);

    /// The connection was closed.
    State finish();

    /// The server's status, 100 to 599. Requires Complete.
    [[nodiscard]] int status() const { return m_status; }
    /// The body without chunk framing. Requires Complete.
    [[nodiscard]] const QByteArray& body() const { return m_body; }

private:
    void readHead();
    void readBody();
    void readChunks();
    /// Consumes the chunk of that size. Returns false while it is incomplete.
    [[nodiscard]] bool takeChunk(qsizetype size);
    [[nodiscard]] bool takeStatusLine(QByteArrayView line);
    [[nodiscard]] bool takeHeader(QByteArrayView line);
    /// Returns the next unread line without its end; empty while it is incomplete.
    [[nodiscard]] std::optional<QByteArrayView> nextLine();

    State m_state = State::Incomplete;
    QByteArray m_bytes;   ///< all that came
    qsizetype m_read = 0; ///< how many of them are dealt with
    bool m_inBody = false;
    bool m_isChunked = false;
    bool m_sawLastChunk = false;
    std::optional<qsizetype> m_length; ///< of the body, where the headers told
    int m_status = 0;
    QByteArray m_body;
};

} // namespace vantle
