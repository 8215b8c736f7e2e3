#include "tracking/SingleInstanceLock.h"

#include "tracking/AppPaths.h"

namespace vantle {

bool SingleInstanceLock::acquire(const AppPaths& paths) {
    FileSystem::LockAttempt attempt = paths.fileSystem().lock(paths.instanceLock());
    m_lock = std::move(attempt.lock);
    return attempt.outcome != FileSystem::LockOutcome::TakenByOther;
}

} // namespace vantle
