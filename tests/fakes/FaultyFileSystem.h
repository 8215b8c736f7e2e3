// A file system that fails where a test says so, over another one.
//
// Three kinds of fault: one chosen call fails, every call of an operation on a file fails until it
// is healed, or the process dies at a chosen call and nothing after it reaches the disk. A failing
// call leaves the other file system as it is, except for a write, which puts down the first half of
// its bytes before it fails, as a full disk does. One thread at a time.
#pragma once

#include "platform/FileSystem.h"

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vantle::fakes {

class FaultyFileSystem final : public FileSystem {
public:
    enum class Operation {
        Open, ///< of any mode but CreateNew
        Create,
        Read,
        Write,
        Size,
        Truncate,
        Sync,
        Close,
        Exists, ///< a fault makes it false
        MakeDirectories,
        Rename, ///< both names count
        Remove,
        SetMode,
        Mode,
        SyncDirectory,
        Lock, ///< a fault makes it Unavailable
    };

    struct Call {
        Operation operation = Operation::Open;
        QString path;
        QString target; ///< the new path of a rename, else empty
        friend bool operator==(const Call&, const Call&) = default;
    };

    /// `inner` must outlive this object and every file it opened.
    explicit FaultyFileSystem(FileSystem& inner) : m_inner(inner) {}

    /// Makes the n-th call from now on fail once; 1 is the next one.
    void failNthCall(int n, int errnoCode);

    /// Makes the n-th call from now on and all after it fail with EIO: the process has died. What
    /// follows for the disk is the other file system's matter, see MemoryFileSystem::crash.
    void dieAtNthCall(int n);

    /// Makes every call of `operation` on `fileName` fail until healed. The name is the last part
    /// of a path or the whole of it, and may hold wildcards, as in ".skills.json.*.tmp". Files that
    /// are open already are meant too.
    void fail(Operation operation, const QString& fileName, int errnoCode);

    /// Undoes `fail` for that operation and name.
    void heal(Operation operation, const QString& fileName);

    /// Undoes all faults.
    void healAll();

    /// Runs before each call takes effect: a disk that takes its time, say.
    std::function<void(Operation)> onCall;

    /// Every call so far in order, the failed ones included.
    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }
    void forgetCalls() { m_calls.clear(); }

    // FileSystem
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override;
    Result<> rename(const QString& from, const QString& to) override;
    Result<> remove(const QString& path) override;
    Result<> setMode(const QString& path, int mode) override;
    Result<int> mode(const QString& path) override;
    Result<> syncDirectory(const QString& path) override;
    [[nodiscard]] LockAttempt lock(const QString& path) override;

private:
    class FaultyFile;

    /// Records a call and tells with which error it is to fail, if it is.
    [[nodiscard]] std::optional<Error> fault(Operation operation, const QString& path,
                                             const QString& target = {});

    FileSystem& m_inner;
    std::vector<Call> m_calls;
    std::map<std::pair<Operation, QString>, int> m_standing; ///< errno codes
    int m_untilFailure = 0;                                  ///< calls to go; 0 when none is set
    int m_failureCode = 0;
    int m_untilDeath = 0; ///< calls to go; 0 when none is set
    bool m_dead = false;
};

} // namespace vantle::fakes
