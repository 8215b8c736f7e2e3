// A child process of whose changes of a directory each is decided upon before it is made.
//
// By seccomp's user notification: the kernel stops the child at a call that may change a file and
// asks this process. Other than with ptrace only those calls stop, no register is named, so that it
// works on every architecture, and no signal gets in the way. Needs no privileges. Linux 5.14.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <sys/mman.h>

namespace vantle::tests {

/// A call that would change something below the watched directory.
struct SystemCall {
    int number = 0;        ///< counted from 1
    const char* name = ""; ///< of the call, without what tells its variants apart: "open", "chmod"
    QString path; ///< below the watched directory, as in "/home/ada"; of a rename the old one
};

/// What becomes of a call.
struct Verdict {
    enum class Kind {
        Pass,
        Fail,    ///< it is not made, and returns `code`
        Pretend, ///< it is not made, and returns success
        Shorten, ///< half of what it was to write is written; others than a write pass
        Kill,    ///< the process is killed before it is made
        Race,    ///< the process is killed while it is made
    };
    Kind kind = Kind::Pass;
    int code = 0; ///< errno
};

/// How a child ended.
enum class Ending {
    Done,
    Killed,      ///< by a verdict
    Failed,      ///< a crash, or work that threw
    Unavailable, ///< the kernel, or a sandbox around this process, does not allow the supervision
};

/// Does `work` in a child and waits for its end. Changes are watched from the moment at which
/// `work` calls its argument, which it must. The child starts as a copy of this process: memory
/// that both are to see has to be shared (SharedMemory). `decide` runs in this process while the
/// child stands still; nothing else changes the directory at that time.
[[nodiscard]] Ending supervise(const QString& directory,
                               const std::function<void(const std::function<void()>& watch)>& work,
                               const std::function<Verdict(const SystemCall&)>& decide);

/// A value of plain data in memory that a child shares with this process. Zero at first.
template <typename Value>
class SharedMemory {
public:
    SharedMemory()
        : m_value(static_cast<Value*>(::mmap(nullptr, sizeof(Value), PROT_READ | PROT_WRITE,
                                             MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
        if (m_value == MAP_FAILED) qFatal("no shared memory");
    }
    ~SharedMemory() { ::munmap(m_value, sizeof(Value)); }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    [[nodiscard]] Value& operator*() const { return *m_value; }
    [[nodiscard]] Value* operator->() const { return m_value; }

private:
    Value* const m_value;
};

} // namespace vantle::tests
