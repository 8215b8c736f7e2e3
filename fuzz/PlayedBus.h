// A message bus in the process of a fuzz target.
#pragma once

#include "BusValues.h"

#include <QByteArray>
#include <QList>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace vantle::fuzz {

/// Takes every connection to its address, answers what the library asks of a bus, and passes each
/// other call to `answer`. All services have one owner, `kService`. Own thread; `answer` runs in
/// it, while the caller is in `settle` or blocks in a call.
class PlayedBus {
public:
    static constexpr const char* kService = ":1.7"; ///< the connection of all services

    struct Call {
        QByteArray path;
        QByteArray interface;
        QByteArray member;
        QByteArray signature;
        QByteArray body;
        QByteArray text;   ///< the first argument, if it is a text
        QByteArray caller; ///< the name of the connection
    };
    /// The reply; empty for an error.
    using Answer = std::function<std::optional<BusBody>(const Call& call)>;

    PlayedBus();
    ~PlayedBus();
    PlayedBus(const PlayedBus&) = delete;
    PlayedBus& operator=(const PlayedBus&) = delete;

    [[nodiscard]] QByteArray address() const;

    /// Begins with no answers to come.
    void play(Answer answer);

    /// Send to all connections, as `sender`.
    void signal(const QByteArray& path, const QByteArray& interface, const QByteArray& member,
                const BusBody& body, const QByteArray& sender = kService);
    void call(const QByteArray& path, const QByteArray& interface, const QByteArray& member,
              const BusBody& body, const QByteArray& sender = kService);
    /// All services have that owner from now on; none for an empty one.
    void setOwner(const QList<QByteArray>& services, bool isThere);

    /// Runs the event loop until nothing is on its way any more.
    void settle();

    /// Replies to `call` so far.
    [[nodiscard]] int replies() const { return m_replies; }
    /// The program sent what no bus accepts, or was disconnected for what it got.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

private:
    struct Client {
        int descriptor = -1;
        QByteArray received;
        bool isAuthenticated = false;
        bool hasName = false;
        bool isPinged = false; ///< and has not answered
        QByteArray name;
        std::uint32_t serial = 0;
    };

    void run();
    void accept();
    [[nodiscard]] bool receive(Client& client);
    void authenticate(Client& client);
    void takeMessages(Client& client);
    void take(Client& client, std::uint8_t type, std::uint8_t flags, QByteArrayView message);
    void answer(Client& client, std::uint32_t serial, const Call& call);
    void sendToAll(std::uint8_t type, const QByteArray& path, const QByteArray& interface,
                   const QByteArray& member, const BusBody& body, const QByteArray& sender);
    void ping();

    const QByteArray m_name;
    int m_listener = -1;
    int m_wake[2] = {-1, -1};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Client> m_clients;
    Answer m_answer;
    bool m_isThere = true;
    int m_named = 0; ///< connections so far
    std::atomic<int> m_replies = 0;
    std::atomic<int> m_traffic = 0; ///< what came in, beside answers to `ping`
    std::atomic<bool> m_isBroken = false;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace vantle::fuzz
