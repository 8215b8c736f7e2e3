// The lock against a second process on the same data.
#pragma once

#include "platform/FileSystem.h"

#include <memory>

namespace vantle {

class AppPaths;

/// Holds a kernel lock on a file of the data directory during its lifetime. A crash releases it
/// too; the remaining file has no effect. Main thread.
class SingleInstanceLock {
public:
    /// Returns false when another process holds the lock. Returns true when the file cannot be
    /// opened or its file system has no locks: a broken data directory must not keep the program
    /// from starting.
    [[nodiscard]] bool acquire(const AppPaths& paths);

private:
    std::unique_ptr<FileLock> m_lock;
};

} // namespace vantle
