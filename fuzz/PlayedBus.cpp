#include "PlayedBus.h"

#include "Input.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vantle::fuzz {
namespace {

enum Type : std::uint8_t { MethodCall = 1, Reply = 2, Failure = 3, Signal = 4 };
enum Field : std::uint8_t {
    Path = 1,
    Interface,
    Member,
    ErrorName,
    ReplySerial,
    Destination,
    Sender,
    Signature
};

constexpr std::uint8_t kNoReply = 1;
constexpr const char* kBus = "org.freedesktop.DBus";
constexpr const char* kBusPath = "/org/freedesktop/DBus";
/// Serial of the calls whose replies only show that all before them has been taken.
constexpr std::uint32_t kPing = 0x7FFFFFF0;

struct Header {
    std::uint8_t type = MethodCall;
    QByteArray path;
    QByteArray interface;
    QByteArray member;
    QByteArray error;
    std::uint32_t replyTo = 0;
    QByteArray destination;
    QByteArray sender;
};

QByteArray message(const Header& header, const BusBody& body, std::uint32_t serial) {
    BusBody whole;
    whole.bytes.append('l').append(static_cast<char>(header.type));
    whole.bytes.append('\0').append('\1');
    whole.number(static_cast<std::uint32_t>(body.bytes.size()));
    whole.number(serial);
    whole.number<std::uint32_t>(0); // the length of the fields
    const qsizetype begin = whole.bytes.size();
    const auto field = [&](Field code, const char* type, const auto& write) {
        whole.align(8);
        whole.bytes.append(static_cast<char>(code));
        whole.shortText(type);
        write();
    };
    const auto text = [&](Field code, const char* type, const QByteArray& value) {
        if (!value.isEmpty()) field(code, type, [&] { whole.text(value); });
    };
    text(Path, "o", header.path);
    text(Interface, "s", header.interface);
    text(Member, "s", header.member);
    text(ErrorName, "s", header.error);
    text(Destination, "s", header.destination);
    text(Sender, "s", header.sender);
    if (header.replyTo != 0) field(ReplySerial, "u", [&] { whole.number(header.replyTo); });
    if (!body.signature.isEmpty()) field(Signature, "g", [&] { whole.shortText(body.signature); });
    const auto length = static_cast<std::uint32_t>(whole.bytes.size() - begin);
    std::memcpy(whole.bytes.data() + begin - 4, &length, sizeof length);
    whole.align(8);
    return whole.bytes + body.bytes;
}

/// Reads what the program sent, which its library has put together.
class Reader {
public:
    explicit Reader(QByteArrayView bytes, qsizetype at) : m_bytes(bytes), m_at(at) {}

    [[nodiscard]] qsizetype at() const { return m_at; }
    void align(qsizetype to) { m_at += (to - m_at % to) % to; }
    std::uint8_t byte() { return static_cast<std::uint8_t>(m_bytes[m_at++]); }
    std::uint32_t number() {
        align(4);
        std::uint32_t value = 0;
        std::memcpy(&value, m_bytes.data() + m_at, sizeof value);
        m_at += 4;
        return value;
    }
    QByteArray text() { return take(number()); }
    QByteArray shortText() { return take(byte()); }

private:
    QByteArray take(qsizetype length) {
        const QByteArray value = m_bytes.sliced(m_at, length).toByteArray();
        m_at += length + 1;
        return value;
    }

    QByteArrayView m_bytes;
    qsizetype m_at;
};

void sendBytes(int descriptor, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const auto sent =
            ::send(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        if (sent <= 0) return; // the program has left
        bytes = bytes.sliced(sent);
    }
}

} // namespace

PlayedBus::PlayedBus() : m_name("vantle-fuzz-" + QByteArray::number(getpid())) {
    m_listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, m_name.constData(), static_cast<std::size_t>(m_name.size()));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1) +
                        static_cast<socklen_t>(m_name.size());
    promise(bind(m_listener, reinterpret_cast<const sockaddr*>(&address), length) == 0 &&
                listen(m_listener, 64) == 0 && pipe2(m_wake, O_CLOEXEC) == 0,
            "a socket for the bus");
    m_thread = std::thread([this] { run(); });
}

PlayedBus::~PlayedBus() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    (void)!write(m_wake[1], "", 1);
    m_thread.join();
    for (const Client& client : m_clients)
        close(client.descriptor);
    for (const int each : {m_listener, m_wake[0], m_wake[1]})
        close(each);
}

QByteArray PlayedBus::address() const { return "unix:abstract=" + m_name; }

void PlayedBus::play(Answer answer) {
    const std::lock_guard lock(m_mutex);
    m_answer = std::move(answer);
    m_isThere = true;
    m_replies = 0;
}

void PlayedBus::run() {
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        std::vector<pollfd> waited{{m_listener, POLLIN, 0}, {m_wake[0], POLLIN, 0}};
        for (const Client& client : m_clients)
            waited.push_back({client.descriptor, POLLIN, 0});
        lock.unlock();
        (void)poll(waited.data(), waited.size(), -1);
        lock.lock();
        // Backwards, since clients that left are taken out.
        for (std::size_t i = waited.size(); i-- > 2;) {
            if (waited[i].revents == 0 || receive(m_clients[i - 2])) continue;
            close(m_clients[i - 2].descriptor);
            m_clients.erase(m_clients.begin() + static_cast<std::ptrdiff_t>(i) - 2);
            ++m_traffic;
            m_changed.notify_all();
        }
        if (waited[0].revents != 0) accept();
    }
}

void PlayedBus::accept() {
    const int descriptor = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (descriptor < 0) return;
    m_clients.push_back({.descriptor = descriptor});
    ++m_traffic;
}

bool PlayedBus::receive(Client& client) {
    std::array<char, 65536> bytes; // NOLINT: filled below
    const auto count = recv(client.descriptor, bytes.data(), bytes.size(), 0);
    if (count <= 0) return false;
    client.received.append(bytes.data(), count);
    if (!client.isAuthenticated) authenticate(client);
    if (client.isAuthenticated) takeMessages(client);
    return true;
}

void PlayedBus::authenticate(Client& client) {
    for (;;) {
        const qsizetype end = client.received.indexOf("\r\n");
        if (end < 0) return;
        const QByteArray line = client.received.first(end);
        client.received.remove(0, end + 2);
        ++m_traffic;
        if (line == "BEGIN") {
            client.isAuthenticated = true;
            return;
        }
        sendBytes(client.descriptor, line.startsWith("NEGOTIATE")
                                         ? QByteArray("AGREE_UNIX_FD\r\n")
                                         : QByteArray("OK 0123456789abcdef0123456789abcdef\r\n"));
    }
}

void PlayedBus::takeMessages(Client& client) {
    constexpr qsizetype kFixed = 16;
    while (client.received.size() >= kFixed) {
        Reader fixed(client.received, 4);
        const qsizetype body = fixed.number();
        (void)fixed.number();
        const qsizetype fields = fixed.number();
        const qsizetype length = kFixed + (fields + 7) / 8 * 8 + body;
        if (client.received.size() < length) return;
        const QByteArray whole = client.received.first(length);
        client.received.remove(0, length);
        take(client, static_cast<std::uint8_t>(whole[1]), static_cast<std::uint8_t>(whole[2]),
             whole);
    }
}

void PlayedBus::take(Client& client, std::uint8_t type, std::uint8_t flags,
                     QByteArrayView message) {
    Reader reader(message, 8);
    const std::uint32_t serial = reader.number();
    const qsizetype end = reader.number() + reader.at();
    Call call;
    std::uint32_t replyTo = 0;
    while (reader.at() < end) {
        reader.align(8);
        if (reader.at() >= end) break;
        const std::uint8_t field = reader.byte();
        const QByteArray fieldType = reader.shortText();
        if (fieldType == "u") {
            const std::uint32_t value = reader.number();
            if (field == ReplySerial) replyTo = value;
            continue;
        }
        const QByteArray value = fieldType == "g" ? reader.shortText() : reader.text();
        if (field == Path) call.path = value;
        if (field == Interface) call.interface = value;
        if (field == Member) call.member = value;
        if (field == Signature) call.signature = value;
    }
    reader.align(8);
    call.body = message.sliced(reader.at()).toByteArray();
    call.caller = client.name;
    if (call.signature.startsWith('s')) call.text = reader.text();
    if (replyTo == kPing) {
        client.isPinged = false;
        m_changed.notify_all();
        return;
    }
    ++m_traffic;
    if (type == Reply || type == Failure) ++m_replies;
    if (type == MethodCall && (flags & kNoReply) == 0) answer(client, serial, call);
}

void PlayedBus::answer(Client& client, std::uint32_t serial, const Call& call) {
    std::optional<BusBody> body;
    const bool isToBus = call.path == kBusPath || call.interface == kBus;
    if (isToBus && call.member == "Hello") {
        client.hasName = true;
        client.name = ":1." + QByteArray::number(100 + ++m_named);
        body.emplace().signature = "s";
        body->text(client.name);
    } else if (isToBus && call.member == "GetNameOwner") {
        if (m_isThere) {
            body.emplace().signature = "s";
            body->text(kService);
        }
    } else if (isToBus && call.member == "NameHasOwner") {
        body.emplace().signature = "b";
        body->number<std::uint32_t>(m_isThere ? 1 : 0);
    } else if (isToBus && call.member != "RequestName") {
        body.emplace();
    } else if (m_answer) {
        body = m_answer(call);
    }
    const Header header{.type = body ? Reply : Failure,
                        .error = body ? QByteArray() : "org.freedesktop.DBus.Error.Failed",
                        .replyTo = serial,
                        .destination = client.name,
                        .sender = isToBus ? QByteArray(kBus) : QByteArray(kService)};
    sendBytes(client.descriptor, message(header, body.value_or(BusBody()), ++client.serial));
}

void PlayedBus::sendToAll(std::uint8_t type, const QByteArray& path, const QByteArray& interface,
                          const QByteArray& member, const BusBody& body, const QByteArray& sender) {
    const std::lock_guard lock(m_mutex);
    for (Client& client : m_clients) {
        if (!client.hasName) continue;
        const Header header{.type = type,
                            .path = path,
                            .interface = interface,
                            .member = member,
                            .destination = type == Signal ? QByteArray() : client.name,
                            .sender = sender};
        sendBytes(client.descriptor, message(header, body, ++client.serial));
    }
}

void PlayedBus::signal(const QByteArray& path, const QByteArray& interface,
                       const QByteArray& member, const BusBody& body, const QByteArray& sender) {
    sendToAll(Signal, path, interface, member, body, sender);
}

void PlayedBus::call(const QByteArray& path, const QByteArray& interface, const QByteArray& member,
                     const BusBody& body, const QByteArray& sender) {
    sendToAll(MethodCall, path, interface, member, body, sender);
}

void PlayedBus::setOwner(const QList<QByteArray>& services, bool isThere) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_isThere == isThere) return;
        m_isThere = isThere;
    }
    for (const QByteArray& service : services) {
        BusBody body;
        body.signature = "sss";
        body.text(service);
        body.text(isThere ? "" : kService);
        body.text(isThere ? kService : "");
        sendToAll(Signal, kBusPath, kBus, "NameOwnerChanged", body, kBus);
    }
}

/// Returns once each connection has taken all before it.
void PlayedBus::ping() {
    std::unique_lock lock(m_mutex);
    for (Client& client : m_clients) {
        if (!client.hasName) continue;
        const Header header{.type = MethodCall,
                            .path = "/",
                            .interface = "org.freedesktop.DBus.Peer",
                            .member = "Ping",
                            .destination = client.name,
                            .sender = kService};
        sendBytes(client.descriptor, message(header, {}, kPing));
        client.isPinged = true;
    }
    const bool answered = m_changed.wait_for(lock, std::chrono::seconds(20), [this] {
        return std::ranges::none_of(m_clients, &Client::isPinged); // those that left are out
    });
    if (!answered) m_isBroken = true;
}

void PlayedBus::settle() {
    // Twice without anything new: what the program has queued may be a moment behind.
    for (int quiet = 0; quiet < 2 && !m_isBroken;) {
        const int before = m_traffic;
        QCoreApplication::processEvents();
        ping();
        QCoreApplication::processEvents();
        quiet = m_traffic == before ? quiet + 1 : 0;
    }
}

} // namespace vantle::fuzz
