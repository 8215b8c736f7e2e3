// A file descriptor that closes itself, and the retry that every interruptible call needs.
#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace vantle::posix {

/// Owns a descriptor, or nothing (-1). Any thread, one at a time.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(Descriptor&& other) noexcept : m_fd(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~Descriptor() {
        if (m_fd >= 0) ::close(m_fd);
    }

    [[nodiscard]] int get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }

    /// Gives the descriptor away, open.
    [[nodiscard]] int release() { return std::exchange(m_fd, -1); }

private:
    int m_fd = -1;
};

/// Calls until a signal no longer gets in the way; the result and errno of the last call.
template <typename Call>
auto retried(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace vantle::posix
