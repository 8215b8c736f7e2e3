#include "lab/SupervisedProcess.h"

#include "platform/posix/Descriptor.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <optional>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <vector>

namespace vantle::tests {

using posix::Descriptor;
using posix::retried;

namespace {

constexpr int kFailedStatus = 1;
constexpr int kUnavailableStatus = 2;
/// A child that makes no call for so long hangs. Longer than any step of a life takes under a
/// sanitizer on a busy machine.
constexpr int kPatience = 120'000; // ms

/// Where a call names its file: in an argument, or by an open descriptor in the first one.
struct Watched {
    unsigned number;
    const char* name;
    int path = -1;  ///< index of the argument with the path; -1 with a descriptor
    int flags = -1; ///< index of the flags of an open call
};

constexpr std::array kWatched{
#ifdef SYS_open
    Watched{SYS_open, "open", 0, 1},      Watched{SYS_creat, "open", 0},
    Watched{SYS_rename, "rename", 0},     Watched{SYS_unlink, "unlink", 0},
    Watched{SYS_mkdir, "mkdir", 0},       Watched{SYS_chmod, "chmod", 0},
    Watched{SYS_link, "link", 0},
#endif
#ifdef SYS_renameat
    Watched{SYS_renameat, "rename", 1},
#endif
    Watched{SYS_openat, "open", 1, 2},    Watched{SYS_renameat2, "rename", 1},
    Watched{SYS_unlinkat, "unlink", 1},   Watched{SYS_mkdirat, "mkdir", 1},
    Watched{SYS_fchmodat, "chmod", 1},    Watched{SYS_linkat, "link", 1},
    Watched{SYS_truncate, "truncate", 0}, Watched{SYS_ftruncate, "truncate"},
    Watched{SYS_fchmod, "chmod"},         Watched{SYS_write, "write"},
    Watched{SYS_pwrite64, "write"},       Watched{SYS_writev, "write"},
    Watched{SYS_fsync, "sync"},           Watched{SYS_fdatasync, "sync"},
};

/// Lets the kernel ask about the watched calls of this process from now on. Returns the descriptor
/// on which it asks, or -1.
int watchThisProcess() {
    std::vector<sock_filter> program{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const Watched& call : kWatched) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call.number, 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return -1;
    return static_cast<int>(
        ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &filter));
}

/// Room for one descriptor that goes over a socket.
struct Passing {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room{};
    char byte = 0;
    iovec bytes{&byte, 1};
    msghdr message{nullptr, 0, &bytes, 1, room.data(), room.size(), 0};
};

void pass(int socket, int descriptor) {
    Passing passing;
    cmsghdr* const header = CMSG_FIRSTHDR(&passing.message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof descriptor);
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    retried([&] { return ::sendmsg(socket, &passing.message, 0); });
}

Descriptor passed(int socket) {
    Passing passing;
    if (retried([&] { return ::recvmsg(socket, &passing.message, MSG_CMSG_CLOEXEC); }) <= 0)
        return {};
    const cmsghdr* const header = CMSG_FIRSTHDR(&passing.message);
    if (!header) return {};
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
    return Descriptor(descriptor);
}

class Supervisor {
public:
    Supervisor(pid_t child, Descriptor listener, const QString& directory,
               const std::function<Verdict(const SystemCall&)>& decide)
        : m_child(child)
        , m_listener(std::move(listener))
        , m_directory(directory)
        , m_canonical(QFileInfo(directory).canonicalFilePath())
        , m_decide(decide) {}

    /// Answers until the child ends.
    Ending run() {
        while (m_ending == Ending::Done) {
            pollfd listener{m_listener.get(), POLLIN, 0};
            const int ready = retried([&] { return ::poll(&listener, 1, kPatience); });
            if (ready <= 0) return kill(Ending::Failed);
            if (!(listener.revents & POLLIN)) break;
            answer();
        }
        if (m_ending != Ending::Done) return m_ending;
        int status = 0;
        retried([&] { return ::waitpid(m_child, &status, 0); });
        return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? Ending::Done : Ending::Failed;
    }

private:
    struct Question {
        seccomp_notif kernel{};
        std::array<char, 64> room{}; ///< for what later kernels add
    };
    struct Answer {
        seccomp_notif_resp kernel{};
        std::array<char, 64> room{};
    };

    Ending kill(Ending ending) {
        ::kill(m_child, SIGKILL);
        retried([&] { return ::waitpid(m_child, nullptr, 0); });
        return m_ending = ending;
    }

    void answer() {
        Question question;
        if (::ioctl(m_listener.get(), SECCOMP_IOCTL_NOTIF_RECV, &question) != 0) return;
        const seccomp_notif& call = question.kernel;
        Verdict verdict;
        if (const auto change = changeOf(call)) verdict = m_decide(*change);
        using Kind = Verdict::Kind;
        if (verdict.kind == Kind::Kill) {
            kill(Ending::Killed);
            return;
        }
        Answer answer;
        answer.kernel.id = call.id;
        if (verdict.kind == Kind::Fail)
            answer.kernel.error = -verdict.code;
        else if (verdict.kind == Kind::Pretend)
            answer.kernel.val = isWrite(call) ? static_cast<qint64>(call.data.args[2]) : 0;
        else if (const auto half = verdict.kind == Kind::Shorten ? writeHalf(call) : std::nullopt)
            answer.kernel.val = *half;
        else
            answer.kernel.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        ::ioctl(m_listener.get(), SECCOMP_IOCTL_NOTIF_SEND, &answer);
        if (verdict.kind == Kind::Race) kill(Ending::Killed);
    }

    [[nodiscard]] static bool isWrite(const seccomp_notif& call) {
        return call.data.nr == SYS_write;
    }

    [[nodiscard]] QString inProc(const char* entry, quint64 descriptor) const {
        return QStringLiteral("/proc/%1/%2/%3")
            .arg(m_child)
            .arg(QLatin1String(entry))
            .arg(descriptor);
    }

    /// Empty for a call that changes nothing below the directory.
    std::optional<SystemCall> changeOf(const seccomp_notif& call) {
        const auto* const watched = std::ranges::find(kWatched, static_cast<unsigned>(call.data.nr),
                                                      [](const Watched& w) { return w.number; });
        if (watched == kWatched.end()) return std::nullopt;
        if (watched->flags >= 0 && (call.data.args[std::size_t(watched->flags)] &
                                    (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) == 0)
            return std::nullopt;
        const bool isOpen = watched->path < 0;
        const QString path = isOpen ? QFile::symLinkTarget(inProc("fd", call.data.args[0]))
                                    : textAt(call.data.args[std::size_t(watched->path)]);
        const QString& directory = isOpen ? m_canonical : m_directory;
        if (!path.startsWith(directory + QLatin1Char('/'))) return std::nullopt;
        return SystemCall{++m_count, watched->name, path.sliced(directory.size())};
    }

    /// The text at an address of the child.
    [[nodiscard]] QString textAt(quint64 address) const {
        const QByteArray memory =
            QByteArrayLiteral("/proc/") + QByteArray::number(m_child) + "/mem";
        const Descriptor file(::open(memory.constData(), O_RDONLY | O_CLOEXEC));
        std::array<char, 4096> text{};
        if (!file || ::pread(file.get(), text.data(), text.size() - 1, off_t(address)) <= 0)
            return {};
        return QFile::decodeName(text.data());
    }

    /// Writes half of the bytes on behalf of the child, by a descriptor that takes the place of its
    /// own and stands behind them. Returns their number.
    std::optional<qint64> writeHalf(const seccomp_notif& call) {
        static const QRegularExpression form(QStringLiteral("pos:\\s*(\\d+)\\s*flags:\\s*(\\d+)"));
        const auto count = static_cast<qint64>(call.data.args[2] / 2);
        QFile info(inProc("fdinfo", call.data.args[0]));
        if (!isWrite(call) || count == 0 || !info.open(QIODevice::ReadOnly)) return std::nullopt;
        const auto match = form.match(QString::fromLatin1(info.readAll()));
        const QByteArray memory =
            QByteArrayLiteral("/proc/") + QByteArray::number(m_child) + "/mem";
        const Descriptor from(::open(memory.constData(), O_RDONLY | O_CLOEXEC));
        const int flags = match.captured(2).toInt(nullptr, 8) & (O_ACCMODE | O_APPEND);
        const QByteArray path = inProc("fd", call.data.args[0]).toLatin1();
        const Descriptor to(::open(path.constData(), flags | O_CLOEXEC));
        QByteArray half(count, '\0');
        if (!from || !to ||
            ::pread(from.get(), half.data(), std::size_t(count), off_t(call.data.args[1])) != count)
            return std::nullopt;
        ::lseek(to.get(), match.captured(1).toLongLong(), SEEK_SET);
        if (::write(to.get(), half.constData(), std::size_t(count)) != count) return std::nullopt;
        seccomp_notif_addfd added{};
        added.id = call.id;
        added.flags = SECCOMP_ADDFD_FLAG_SETFD;
        added.srcfd = static_cast<unsigned>(to.get());
        added.newfd = static_cast<unsigned>(call.data.args[0]);
        added.newfd_flags = O_CLOEXEC;
        if (::ioctl(m_listener.get(), SECCOMP_IOCTL_NOTIF_ADDFD, &added) < 0)
            qFatal("half of a write can't be taken back");
        return count;
    }

    const pid_t m_child;
    const Descriptor m_listener;
    const QString m_directory;
    const QString m_canonical; ///< as the kernel names open files
    const std::function<Verdict(const SystemCall&)>& m_decide;
    int m_count = 0;
    Ending m_ending = Ending::Done;
};

/// The child's side. Does not return.
[[noreturn]] void live(int socket,
                       const std::function<void(const std::function<void()>& watch)>& work) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
    int status = 0;
    try {
        work([socket] {
            const Descriptor listener(watchThisProcess());
            if (!listener) ::_exit(kUnavailableStatus);
            pass(socket, listener.get());
        });
    } catch (...) {
        status = kFailedStatus;
    }
    // Not exit(): the objects of the parent are not this process's to destroy.
    ::_exit(status);
}

} // namespace

Ending supervise(const QString& directory,
                 const std::function<void(const std::function<void()>& watch)>& work,
                 const std::function<Verdict(const SystemCall&)>& decide) {
    std::array<int, 2> sockets{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0)
        return Ending::Unavailable;
    const Descriptor mine(sockets[0]);
    Descriptor childs(sockets[1]);
    const pid_t child = ::fork();
    if (child < 0) return Ending::Unavailable;
    if (child == 0) live(childs.get(), work);
    childs = Descriptor();
    if (Descriptor listener = passed(mine.get()))
        return Supervisor(child, std::move(listener), directory, decide).run();
    int status = 0;
    retried([&] { return ::waitpid(child, &status, 0); });
    return WIFEXITED(status) && WEXITSTATUS(status) == kUnavailableStatus ? Ending::Unavailable
                                                                          : Ending::Failed;
}

} // namespace vantle::tests
