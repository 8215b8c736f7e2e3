// A file system that injects faults into another one.
//
// One chosen call fails, every call of an operation on a file fails until healed, or the process
// dies at a chosen call and nothing later reaches the disk. A failing call has no effect, except
// that a failing write writes half of its bytes, as on a full disk. One thread at a time.
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
        Open, ///< any mode but CreateNew
        Create,
        Read,
        Write,
        Size,
        Stamp, ///< a fault makes it empty
        Truncate,
        Sync,
        Close,
        Exists, ///< a fault makes it false
        Names,
        MakeDirectories,
        Rename, ///< matches both names
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

    /// `inner` must outlive this object and all files it opened.
    explicit FaultyFileSystem(FileSystem& inner) : m_inner(inner) {}

    /// Makes the n-th call from now on fail once; 1 is the next one.
    void failNthCall(int n, int errnoCode);

    /// Makes the n-th call from now on and all later ones fail with EIO: the process has died.
    /// MemoryFileSystem::crash decides what the disk keeps.
    void dieAtNthCall(int n);

    /// Makes every call of `operation` on `fileName` fail until healed, also on open files. The
    /// name is the last part of a path or the whole path, with optional wildcards, as in
    /// ".skills.json.*.tmp".
    void fail(Operation operation, const QString& fileName, int errnoCode);

    /// Reverts `fail` for that operation and name.
    void heal(Operation operation, const QString& fileName);

    /// Reverts all faults.
    void healAll();

    /// Runs before each call takes effect, for example to simulate a slow disk.
    std::function<void(Operation)> onCall;

    /// All calls so far in order, failed ones included.
    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }
    void forgetCalls() { m_calls.clear(); }

    // FileSystem
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<QStringList> names(const QString& directory) override;
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override;
    Result<> rename(const QString& from, const QString& to) override;
    Result<> remove(const QString& path) override;
    Result<> setMode(const QString& path, int mode) override;
    Result<int> mode(const QString& path) override;
    Result<> syncDirectory(const QString& path) override;
    [[nodiscard]] LockAttempt lock(const QString& path) override;

private:
    class FaultyFile;

    /// Records a call and returns the error with which it must fail, if any.
    [[nodiscard]] std::optional<Error> fault(Operation operation, const QString& path,
                                             const QString& target = {});

    FileSystem& m_inner;
    std::vector<Call> m_calls;
    std::map<std::pair<Operation, QString>, int> m_standing; ///< errno codes
    /// Remaining calls; 0 when none is set.
    int m_untilFailure = 0;
    int m_failureCode = 0;
    int m_untilDeath = 0; ///< remaining calls; 0 when none is set
    bool m_dead = false;
};

} // namespace vantle::fakes
