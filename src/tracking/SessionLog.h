// The log of finished sessions: one JSON line per record.
#pragma once

#include "base/Result.h"
#include "tracking/Session.h"

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

class AppPaths;

/// The result of reading the log.
struct LogRead {
    std::vector<Session> sessions; ///< oldest end first; equal ends in file order
    int unreadable = 0;            ///< number of lines without a valid record
};

/// The operations on "sessions.jsonl". Unreadable lines keep their bytes and their place through
/// every operation. Stateless: each call accesses the file. Blocks; call from jobs of the I/O
/// queue.
class SessionLog {
public:
    explicit SessionLog(const AppPaths& paths) : m_paths(paths) {}

    /// Appends a record and returns once it is on disk. Refuses an invalid record. When the write
    /// fails, the file is cut back to its previous length, so that the next record cannot merge
    /// with a torn one. When only setting the mode fails, the record stays in the file.
    Result<> append(const Session& session) const;

    /// Returns all valid records, read from the first line on. A missing, unreadable or non-UTF-8
    /// file gives none and a count of 0.
    [[nodiscard]] LogRead readAll() const;

    using Transform = std::function<std::optional<Session>(const Session&)>;

    /// Replaces each record with that id by the result of `transform`, or removes it when that is
    /// empty. Returns false when there is no such record or no readable file. On an error (invalid
    /// result, failed write) the file is unchanged.
    Result<bool> rewrite(const QUuid& id, const Transform& transform) const;

private:
    const AppPaths& m_paths;
};

} // namespace vantle
