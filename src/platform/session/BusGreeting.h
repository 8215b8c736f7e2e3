// A non-blocking check that a message bus responds.
#pragma once

#include <QByteArray>

namespace vantle {

/// The bus library cannot check this: connecting, authenticating and the first call are one
/// blocking call, which takes over a minute when the daemon is stopped, for all buses on one
/// thread.
///
/// Supports local sockets only. Any thread.
class BusGreeting {
public:
    /// Connects to the first local socket in `address` (form of $DBUS_SESSION_BUS_ADDRESS) and
    /// starts to authenticate.
    explicit BusGreeting(const QByteArray& address);
    ~BusGreeting();
    BusGreeting(const BusGreeting&) = delete;
    BusGreeting& operator=(const BusGreeting&) = delete;

    enum class Answer {
        Waiting, ///< no response yet
        Answers, ///< responded, with anything
        Absent,  ///< no such socket, or it was closed
        Unknown, ///< another transport, which only connecting can check
    };

    /// Returns the state so far. Does not block.
    [[nodiscard]] Answer answer();

    /// The socket, which becomes readable with the response; -1 unless Waiting.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// Blocks until the response, for at most `limitMs` milliseconds.
    [[nodiscard]] Answer waitForAnswer(int limitMs);

private:
    void greet(const QByteArray& address);
    Answer conclude(Answer answer);

    int m_descriptor = -1;
    Answer m_answer = Answer::Unknown;
};

} // namespace vantle
