// A bus that takes every call and never answers, as one whose daemon is stopped.
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vantle::tests {

class MuteBus {
public:
    MuteBus() : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        std::strncpy(name.sun_path, path().constData(), sizeof name.sun_path - 1);
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
        EXPECT_EQ(::listen(m_socket, 5), 0);
    }
    ~MuteBus() { ::close(m_socket); }
    MuteBus(const MuteBus&) = delete;
    MuteBus& operator=(const MuteBus&) = delete;

    [[nodiscard]] QByteArray address() const { return "unix:path=" + path(); }

    /// Whether a client has called.
    [[nodiscard]] bool hasCaller() const {
        pollfd waiting{m_socket, POLLIN, 0};
        return ::poll(&waiting, 1, 0) == 1;
    }

private:
    [[nodiscard]] QByteArray path() const {
        return m_folder.filePath(QStringLiteral("b")).toUtf8();
    }

    QTemporaryDir m_folder;
    int m_socket;
};

} // namespace vantle::tests
