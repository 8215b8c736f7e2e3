// What real disks and a real kernel add to the contract of file systems.
#include "platform/posix/PosixFileSystem.h"

#include "platform/posix/PosixFile.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <array>
#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace vantle {
namespace {

using OpenMode = FileSystem::OpenMode;

class PosixFileSystemTest : public testing::Test {
protected:
    [[nodiscard]] QString at(const char* name) const {
        return m_directory.path() + QLatin1Char('/') + QLatin1String(name);
    }
    [[nodiscard]] QByteArray nameAt(const char* name) const { return QFile::encodeName(at(name)); }

    const QTemporaryDir m_directory;
    PosixFileSystem m_files;
};

class Umask {
public:
    explicit Umask(mode_t mask) : m_former(::umask(mask)) {}
    ~Umask() { ::umask(m_former); }
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

private:
    const mode_t m_former;
};

TEST_F(PosixFileSystemTest, NoUmaskChangesTheModeOfANewFile) {
    for (const mode_t mask : {0000, 0022, 0077, 0277, 0777}) {
        const Umask umask(mask);
        ASSERT_TRUE(m_files.open(at("a"), OpenMode::CreateNew));
        EXPECT_EQ(m_files.mode(at("a")).value(), 0600) << mask;
        EXPECT_EQ(m_files.lock(at("l")).outcome, FileSystem::LockOutcome::Held);
        EXPECT_EQ(m_files.mode(at("l")).value(), 0600) << mask;
        ASSERT_TRUE(m_files.remove(at("a")));
        ASSERT_TRUE(m_files.remove(at("l")));
    }
}

TEST_F(PosixFileSystemTest, NoUmaskChangesADirectoryModeThatWasAskedFor) {
    const Umask umask(0277);
    ASSERT_TRUE(m_files.makeDirectories(at("x/y"), 0755));
    EXPECT_EQ(m_files.mode(at("x")).value(), 0755);
    EXPECT_EQ(m_files.mode(at("x/y")).value(), 0755);
}

TEST_F(PosixFileSystemTest, TheUmaskRulesWhereNoModeWasAskedFor) {
    const Umask umask(0027);
    ASSERT_TRUE(m_files.makeDirectories(at("x"), std::nullopt));
    EXPECT_EQ(m_files.mode(at("x")).value(), 0750);
}

TEST_F(PosixFileSystemTest, TellsTheModeThatTheUmaskLeavesToNewFiles) {
    for (const auto& [mask, left] : {std::pair(0022, 0644), {0077, 0600}, {0002, 0664}}) {
        const Umask umask(static_cast<mode_t>(mask));
        EXPECT_EQ(m_files.usualMode(), left);
    }
}

TEST_F(PosixFileSystemTest, AFullDeviceIsToldOnWriting) {
    auto file = m_files.open(QStringLiteral("/dev/full"), OpenMode::Append);
    ASSERT_TRUE(file);
    const auto written = file.value()->write("x");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, ENOSPC);
    EXPECT_EQ(written.error().description(),
              QStringLiteral("No space left on device (write /dev/full)"));
}

TEST_F(PosixFileSystemTest, ASyncThatTheDeviceCannotDoIsToldToo) {
    auto file = m_files.open(QStringLiteral("/dev/full"), OpenMode::Append);
    ASSERT_TRUE(file);
    EXPECT_EQ(file.value()->sync().error().operation, QStringLiteral("sync"));
}

TEST_F(PosixFileSystemTest, AReadOnlyFileSystemRefusesChanges) {
    // /proc refuses new names to everyone, root included.
    EXPECT_FALSE(m_files.open(QStringLiteral("/proc/vantle"), OpenMode::CreateNew));
    EXPECT_FALSE(m_files.makeDirectories(QStringLiteral("/proc/vantle"), 0700));
    EXPECT_FALSE(m_files.remove(QStringLiteral("/proc/version")));
    EXPECT_EQ(m_files.lock(QStringLiteral("/proc/vantle")).outcome,
              FileSystem::LockOutcome::Unavailable);
}

TEST_F(PosixFileSystemTest, APipeInThePlaceOfAFileDoesNotMakeItWait) {
    ASSERT_EQ(::mkfifo(nameAt("pipe").constData(), 0600), 0);
    EXPECT_EQ(m_files.readAll(at("pipe")).value(), "");
    EXPECT_EQ(m_files.open(at("pipe"), OpenMode::Append).error().code, ENXIO);
}

TEST_F(PosixFileSystemTest, FollowsSymbolicLinks) {
    ASSERT_TRUE(m_files.open(at("a"), OpenMode::CreateNew));
    ASSERT_EQ(::symlink("a", nameAt("link").constData()), 0);
    ASSERT_EQ(::symlink("none", nameAt("dangling").constData()), 0);
    EXPECT_TRUE(m_files.exists(at("link")));
    EXPECT_FALSE(m_files.exists(at("dangling")));
    EXPECT_EQ(m_files.makeDirectories(at("dangling"), 0700).error().code, ENOENT);
    EXPECT_EQ(m_files.open(at("dangling"), OpenMode::CreateNew).error().code, EEXIST);
}

TEST_F(PosixFileSystemTest, ReadsFilesThatDoNotTellTheirSize) {
    const auto content = m_files.readAll(QStringLiteral("/proc/self/stat"));
    ASSERT_TRUE(content);
    EXPECT_TRUE(content.value().startsWith(QByteArray::number(::getpid())));
}

TEST_F(PosixFileSystemTest, NamesOutsideAsciiAreUtf8OnDisk) {
    ASSERT_TRUE(
        m_files.open(m_directory.path() + QStringLiteral("/Z\u00fcrich"), OpenMode::CreateNew));
    EXPECT_EQ(::access(nameAt("Z\xc3\xbcrich").constData(), F_OK), -1) << "not Latin-1 twice";
    const QByteArray name = QFile::encodeName(m_directory.path()) + "/Z\xc3\xbcrich";
    EXPECT_EQ(::access(name.constData(), F_OK), 0);
}

TEST_F(PosixFileSystemTest, DescriptorsDoNotReachChildProcesses) {
    const auto file = m_files.open(at("a"), OpenMode::CreateNew);
    const auto lock = m_files.lock(at("l"));
    ASSERT_TRUE(file && lock.lock);
    int inheritable = 0;
    for (int fd = 3; fd < 256; ++fd) {
        std::array<char, 4096> target{};
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(fd);
        const ssize_t length = ::readlink(link.constData(), target.data(), target.size());
        const QByteArray name(target.data(), std::max<ssize_t>(length, 0));
        if (!name.startsWith(QFile::encodeName(m_directory.path()))) continue;
        if ((::fcntl(fd, F_GETFD) & FD_CLOEXEC) == 0) ++inheritable;
    }
    EXPECT_EQ(inheritable, 0);
}

TEST_F(PosixFileSystemTest, ALockOfAProcessThatDiedIsFree) {
    const pid_t child = ::fork();
    if (child == 0) {
        auto attempt = m_files.lock(at("l"));
        ::_exit(attempt.outcome == FileSystem::LockOutcome::Held ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the child had the lock when it ended";
    EXPECT_EQ(m_files.lock(at("l")).outcome, FileSystem::LockOutcome::Held);
}

std::atomic<int> interruptions = 0;

/// Both ends of a pipe, and a signal that interrupts calls instead of restarting them.
class InterruptedPipe : public testing::Test {
protected:
    InterruptedPipe() {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        m_readEnd = posix::Descriptor(ends[0]);
        m_writeEnd = posix::Descriptor(ends[1]);
        struct sigaction action {};
        action.sa_handler = [](int) { ++interruptions; };
        ::sigaction(SIGUSR1, &action, &m_former);
        for (int i = 0; i < 100000; ++i)
            m_content += QByteArray::number(i);
    }
    ~InterruptedPipe() override { ::sigaction(SIGUSR1, &m_former, nullptr); }

    posix::Descriptor m_readEnd;
    posix::Descriptor m_writeEnd;
    QByteArray m_content;
    struct sigaction m_former {};
};

TEST_F(InterruptedPipe, PartialWritesAreContinued) {
    const pthread_t writer = ::pthread_self();
    QByteArray received;
    std::thread reader([&] {
        std::array<char, 1024> buffer{};
        ssize_t count = 1;
        while (count > 0) {
            // The writer is blocked here most of the time: the pipe holds less than it has.
            ::pthread_kill(writer, SIGUSR1);
            count = posix::retried(
                [&] { return ::read(m_readEnd.get(), buffer.data(), buffer.size()); });
            if (count > 0) received.append(buffer.data(), count);
        }
    });
    {
        PosixFile file(std::move(m_writeEnd), QStringLiteral("pipe"));
        EXPECT_TRUE(file.write(m_content));
        EXPECT_TRUE(file.close());
    }
    reader.join();
    EXPECT_TRUE(received == m_content) << received.size() << " bytes of " << m_content.size();
}

TEST_F(InterruptedPipe, InterruptedReadsAreTakenUpAgain) {
    const pthread_t reader = ::pthread_self();
    std::thread writer([&] {
        const posix::Descriptor end = std::move(m_writeEnd);
        for (int i = 0; i < 50; ++i) {
            // Nothing is there to read, so the reader waits; each signal wakes it for nothing.
            // Sent again until it is heard: the thread sanitizer may keep one back until the next.
            const int before = interruptions;
            while (interruptions == before) {
                ::pthread_kill(reader, SIGUSR1);
                std::this_thread::yield();
            }
        }
        EXPECT_EQ(::write(end.get(), "content", 7), 7);
    });
    PosixFile file(std::move(m_readEnd), QStringLiteral("pipe"));
    std::array<char, 16> buffer{};
    const auto count = file.read(buffer.data(), buffer.size());
    writer.join();
    ASSERT_TRUE(count) << count.error().description().toStdString();
    EXPECT_EQ(QByteArray(buffer.data(), count.value()), "content");
}

} // namespace
} // namespace vantle
