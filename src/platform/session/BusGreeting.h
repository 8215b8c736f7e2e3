// The first words to a message bus, said without waiting for the answer.
#pragma once

#include <QByteArray>

namespace vantle {

/// Finds out whether a bus answers at all. The bus library can't: it connects, authenticates and
/// asks for a name in one call that blocks, for more than a minute where a daemon is stopped, and
/// it does so for all buses on one thread.
///
/// Knows the addresses of local sockets. Any thread.
class BusGreeting {
public:
    /// Connects to the first local socket in `address`, which has the form of
    /// $DBUS_SESSION_BUS_ADDRESS, and begins to authenticate.
    explicit BusGreeting(const QByteArray& address);
    ~BusGreeting();
    BusGreeting(const BusGreeting&) = delete;
    BusGreeting& operator=(const BusGreeting&) = delete;

    enum class Answer {
        Waiting, ///< nothing said yet
        Answers, ///< whatever it said, somebody is there
        Absent,  ///< no such socket, or it was closed on us
        Unknown, ///< an address of another kind: only connecting will tell
    };

    /// What is known by now. Blocks for nothing.
    [[nodiscard]] Answer answer();

    /// The socket, which becomes readable with the answer; -1 unless waiting.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// Waits for the answer, `limitMs` at the most.
    [[nodiscard]] Answer waitForAnswer(int limitMs);

private:
    void greet(const QByteArray& address);
    Answer conclude(Answer answer);

    int m_descriptor = -1;
    Answer m_answer = Answer::Unknown;
};

} // namespace vantle
