// The log of finished work: one JSON line a record, in order of appending.
#pragma once

#include "base/Result.h"
#include "tracking/Session.h"

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

class AppPaths;

/// What a read of the log found.
struct LogRead {
    std::vector<Session> sessions; ///< oldest end first; equal ends in the order of the file
    int unreadable = 0;            ///< lines that are no acceptable record
};

/// The operations on "sessions.jsonl". Lines that can't be read stay where they are, byte for byte,
/// through every operation. No state: each call goes to the file.
///
/// Every call blocks and belongs on the I/O queue.
class SessionLog {
public:
    explicit SessionLog(const AppPaths& paths) : m_paths(paths) {}

    /// Adds a record, and returns when it is on the disk. Nothing is written for a record that
    /// breaks the rules. When writing fails, the file is put back to its length before, so that the
    /// next record can't fuse with a torn half. When only the mode can't be set, the record is in
    /// the file all the same.
    Result<> append(const Session& session) const;

    /// All acceptable records. A file that is missing, can't be read or is not UTF-8 gives none,
    /// and no count.
    [[nodiscard]] LogRead readAll() const;

    using Transform = std::function<std::optional<Session>(const Session&)>;

    /// Replaces every record with that id by what `transform` makes of it, none meaning deletion,
    /// and keeps all else. False when there is no such record or no readable file; an error when a
    /// result breaks the rules or the file can't be written, and then the file is as it was.
    Result<bool> rewrite(const QUuid& id, const Transform& transform) const;

private:
    const AppPaths& m_paths;
};

} // namespace vantle
