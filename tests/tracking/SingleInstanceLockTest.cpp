#include "tracking/SingleInstanceLock.h"

#include "fakes/FaultyFileSystem.h"
#include "platform/posix/PosixFileSystem.h"
#include "tracking/AppPaths.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <dlfcn.h>
#include <vector>

namespace {

int flockFailsWith = 0; // errno; 0 lets it through

} // namespace

// Stands in front of the C library's in this program, for file systems that refuse to lock.
extern "C" int flock(int file, int operation) {
    if (flockFailsWith != 0) {
        errno = flockFailsWith;
        return -1;
    }
    static const auto real = reinterpret_cast<int (*)(int, int)>(dlsym(RTLD_NEXT, "flock"));
    return real(file, operation);
}

namespace vantle {
namespace {

constexpr int kPatience = 30'000; // milliseconds, only ever used up by a failure

/// Another process that tries to get the lock and keeps it while this object lives.
class OtherCopy {
public:
    explicit OtherCopy(const QString& dataHome) {
        m_process.start(QStringLiteral(VANTLE_LOCK_HOLDER), {dataHome});
    }
    ~OtherCopy() {
        m_process.closeWriteChannel();
        m_process.waitForFinished(kPatience);
    }
    OtherCopy(const OtherCopy&) = delete;
    OtherCopy& operator=(const OtherCopy&) = delete;

    std::string answer() {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kPatience)) {
        }
        return m_process.readLine().trimmed().toStdString();
    }
    void crash() {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }

private:
    QProcess m_process;
};

class SingleInstanceLockTest : public testing::Test {
protected:
    QTemporaryDir dataHome;
    PosixFileSystem files;
    AppPaths paths{files, dataHome.path()};
};

TEST_F(SingleInstanceLockTest, TheFirstCopyGetsItAndTheSecondDoesNot) {
    SingleInstanceLock lock;
    ASSERT_TRUE(lock.acquire(paths));
    OtherCopy second(dataHome.path());
    EXPECT_EQ(second.answer(), "refused");
}

TEST_F(SingleInstanceLockTest, OfManyLaunchesAtOnceExactlyOneGetsIt) {
    std::vector<std::unique_ptr<OtherCopy>> copies;
    for (int i = 0; i < 8; ++i)
        copies.push_back(std::make_unique<OtherCopy>(dataHome.path()));
    int held = 0;
    int refused = 0;
    for (const auto& copy : copies) {
        const std::string answer = copy->answer();
        held += answer == "held";
        refused += answer == "refused";
    }
    EXPECT_EQ(held, 1);
    EXPECT_EQ(refused, 7);
}

TEST_F(SingleInstanceLockTest, AfterACrashTheNextLaunchGetsIt) {
    OtherCopy first(dataHome.path());
    ASSERT_EQ(first.answer(), "held");
    SingleInstanceLock lock;
    EXPECT_FALSE(lock.acquire(paths));
    first.crash();
    EXPECT_TRUE(files.exists(paths.instanceLock()));
    EXPECT_TRUE(lock.acquire(paths));
}

TEST_F(SingleInstanceLockTest, AnOrderlyExitLeavesTheFileAndIsNoObstacle) {
    {
        OtherCopy first(dataHome.path());
        ASSERT_EQ(first.answer(), "held");
    }
    EXPECT_TRUE(files.exists(paths.instanceLock()));
    SingleInstanceLock lock;
    EXPECT_TRUE(lock.acquire(paths));
}

TEST_F(SingleInstanceLockTest, ContentOfAStaleFileIsIgnored) {
    QFile stale(paths.instanceLock());
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("4711");
    stale.close();
    SingleInstanceLock lock;
    EXPECT_TRUE(lock.acquire(paths));
    OtherCopy second(dataHome.path());
    EXPECT_EQ(second.answer(), "refused");
}

TEST_F(SingleInstanceLockTest, ItsFileIsPrivate) {
    SingleInstanceLock lock;
    ASSERT_TRUE(lock.acquire(paths));
    EXPECT_EQ(files.mode(paths.instanceLock()).value(), 0600);
}

TEST_F(SingleInstanceLockTest, TheLockGoesWithItsObject) {
    {
        SingleInstanceLock lock;
        ASSERT_TRUE(lock.acquire(paths));
    }
    OtherCopy second(dataHome.path());
    EXPECT_EQ(second.answer(), "held");
}

TEST_F(SingleInstanceLockTest, CopiesOnOtherDataDoNotMeet) {
    const QTemporaryDir otherHome;
    SingleInstanceLock lock;
    ASSERT_TRUE(lock.acquire(paths));
    OtherCopy other(otherHome.path());
    EXPECT_EQ(other.answer(), "held");
}

TEST_F(SingleInstanceLockTest, ALockFileThatCannotBeOpenedDoesNotPreventTheStart) {
    fakes::FaultyFileSystem faulty(files);
    faulty.fail(fakes::FaultyFileSystem::Operation::Lock, QStringLiteral(".instance.lock"), EACCES);
    SingleInstanceLock lock;
    EXPECT_TRUE(lock.acquire(AppPaths(faulty, dataHome.path())));
    ASSERT_TRUE(files.makeDirectories(paths.instanceLock(), 0700).ok());
    EXPECT_TRUE(lock.acquire(paths));
}

TEST_F(SingleInstanceLockTest, FileSystemWithoutLocksDoesNotPreventTheStart) {
    for (const int code : {ENOLCK, ENOSYS, EOPNOTSUPP, EINVAL}) {
        SingleInstanceLock lock;
        flockFailsWith = code;
        EXPECT_TRUE(lock.acquire(paths)) << code;
        flockFailsWith = EWOULDBLOCK;
        EXPECT_FALSE(lock.acquire(paths)) << code;
        flockFailsWith = 0;
    }
}

} // namespace
} // namespace vantle
