// Reads the response of an HTTP/1.1 server as it comes in, within bounds.
//
// A plain value, any thread. Knows what a local server sends back to one POST: a status, headers,
// and a body that ends by its length, by chunks, or with the connection.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace vantle {

class HttpResponse {
public:
    /// The most bytes that a response may have, headers and the frames of chunks included.
    static constexpr qsizetype maxSize = 1 << 20;

    enum class State {
        Incomplete, ///< more is to come
        Complete,
        Broken, ///< not HTTP, too long, or cut off
    };

    /// Takes what came in. After the end nothing changes any more.
    State take(QByteArrayView bytes);

    /// The connection has ended.
    State finish();

    /// As the server gave it, 100 to 599. Only when complete.
    [[nodiscard]] int status() const { return m_status; }
    /// Without chunk frames. Only when complete.
    [[nodiscard]] const QByteArray& body() const { return m_body; }

private:
    void readHead();
    void readBody();
    void readChunks();
    /// Whether the chunk of that size is there with its end; then it is dealt with.
    [[nodiscard]] bool takeChunk(qsizetype size);
    [[nodiscard]] bool takeStatusLine(QByteArrayView line);
    [[nodiscard]] bool takeHeader(QByteArrayView line);
    /// The next line of what is left to read, without its end; none while it is incomplete.
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
