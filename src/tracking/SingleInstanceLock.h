// Keeps a second copy of the program away from the same data.
#pragma once

#include "platform/FileSystem.h"

#include <memory>

namespace vantle {

class AppPaths;

/// Holds the kernel's lock on a file of the support directory for as long as it lives. A crash
/// gives it up as well; the file stays and means nothing by itself. Main thread.
class SingleInstanceLock {
public:
    /// False when another process holds the lock. A lock file that can't be opened, or one on a
    /// file system without locks, is no reason to refuse: a broken support directory must not keep
    /// the program from starting.
    [[nodiscard]] bool acquire(const AppPaths& paths);

private:
    std::unique_ptr<FileLock> m_lock;
};

} // namespace vantle
