// A file descriptor that closes itself.
//
// Also the retry for interruptible calls.
#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace vantle::posix {

/// Owns a descriptor, or none (-1). Any thread, one at a time.
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

    /// Returns the open descriptor and gives up ownership.
    [[nodiscard]] int release() { return std::exchange(m_fd, -1); }

private:
    int m_fd = -1;
};

/// Repeats the call while a signal interrupts it. Returns its result and leaves errno.
template <typename Call>
auto retried(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace vantle::posix
