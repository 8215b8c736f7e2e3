#include "tracking/SessionLog.h"

#include "platform/FileSystem.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/SessionLines.h"

#include <simdjson.h>

#include <algorithm>
#include <cerrno>

namespace vantle {

namespace {

/// Block size for reading the log, in bytes. Longer lines enlarge it.
constexpr qsizetype kBlockSize = 1 << 20;

/// Reserve for the growth of a rewritten log, in bytes.
constexpr qint64 kRoomForANote = 4096;

bool isUtf8(QByteArrayView bytes) {
    return simdjson::validate_utf8(bytes.data(), static_cast<std::size_t>(bytes.size()));
}

Error recordRefused(const QString& path) {
    return {0, QStringLiteral("check"), path,
            QStringLiteral("The record breaks the rules of the log")};
}

/// Estimates the records in a file of `fileSize` bytes, given `count` in its first `bytes`.
/// Slightly high, so that the vector does not grow for a few more.
std::size_t expectedCount(std::size_t count, qsizetype bytes, qint64 fileSize) {
    const double density = static_cast<double>(count) / static_cast<double>(bytes);
    return count + static_cast<std::size_t>(density * 1.03 * static_cast<double>(fileSize));
}

/// Calls `visit` with the file in blocks of whole lines; the last may lack its line feed. Returns
/// false when the file cannot be read or `visit` returns false.
template <typename Visit>
bool forEachBlock(File& file, Visit visit) {
    QByteArray buffer(kBlockSize, Qt::Uninitialized);
    qsizetype filled = 0;
    for (;;) {
        if (filled == buffer.size()) buffer.resize(buffer.size() * 2);
        const auto count = file.read(buffer.data() + filled, buffer.size() - filled);
        if (!count) return false;
        if (count.value() == 0) break;
        // Only the new bytes can hold the last line feed of a line that spans blocks.
        const QByteArrayView fresh(buffer.constData() + filled, count.value());
        filled += count.value();
        const qsizetype feed = fresh.lastIndexOf('\n');
        if (feed < 0) continue;
        const qsizetype whole = fresh.data() + feed + 1 - buffer.constData();
        if (!visit(QByteArrayView(buffer.constData(), whole))) return false;
        filled -= whole;
        std::memmove(buffer.data(), buffer.constData() + whole, static_cast<std::size_t>(filled));
    }
    return filled == 0 || visit(QByteArrayView(buffer.constData(), filled));
}

/// Copies lines byte for byte, each with a line feed; adjacent lines in one piece.
class LineCopier {
public:
    explicit LineCopier(QByteArray& output) : m_output(output) {}

    void add(QByteArrayView line) {
        if (m_begin && line.data() == m_end + 1 && *m_end == '\n') {
            m_end = line.data() + line.size();
            return;
        }
        flush();
        m_begin = line.data();
        m_end = m_begin + line.size();
    }

    void flush() {
        if (m_begin) m_output.append(m_begin, m_end - m_begin).append('\n');
        m_begin = nullptr;
    }

private:
    QByteArray& m_output;
    const char* m_begin = nullptr; ///< start of the piece not yet copied
    const char* m_end = nullptr;
};

Result<> appendTo(FileSystem& files, const QString& path, File& file, QByteArrayView line) {
    const auto before = file.size();
    if (!before) return before.error();
    Result<> outcome = file.write(line);
    if (outcome) outcome = file.sync();
    if (!outcome) {
        // A torn line would swallow the next one.
        file.truncate(before.value()).ignore();
        return outcome;
    }
    outcome = file.close();
    if (!outcome) {
        // The line is in the file, and the next try would log it once more.
        if (const auto again = files.open(path, FileSystem::OpenMode::Append))
            again.value()->truncate(before.value()).ignore();
    }
    return outcome;
}

} // namespace

Result<> SessionLog::append(const Session& session) const {
    const QString path = m_paths.sessionsFile();
    if (!isAcceptable(session)) return recordRefused(path);
    auto encoded = json::encode(session);
    if (!encoded) return encoded.error();
    const QByteArray line = encoded.value() + '\n';
    FileSystem& files = m_paths.fileSystem();
    auto file = files.open(path, FileSystem::OpenMode::Append);
    if (!file) {
        // Only ENOENT starts a new log, since starting one replaces the file.
        return file.error().code == ENOENT ? m_paths.writeProtected(line, path) : file.error();
    }
    if (auto appended = appendTo(files, path, *file.value(), line); !appended) return appended;
    return files.setMode(path, 0600);
}

LogRead SessionLog::readAll() const {
    auto file = m_paths.fileSystem().open(m_paths.sessionsFile(), FileSystem::OpenMode::Read);
    if (!file) return {};
    const auto size = file.value()->size();
    LogRead log;
    sessionlines::Reader reader;
    const auto take = [&log](QByteArrayView, std::optional<Session>&& session) {
        if (session && isAcceptable(*session))
            log.sessions.push_back(std::move(*session));
        else
            ++log.unreadable;
    };
    const bool complete = forEachBlock(*file.value(), [&](QByteArrayView block) {
        // One invalid byte makes the whole log unreadable: a damaged disk's content is not guessed.
        if (!isUtf8(block)) return false;
        const bool isFirst = log.sessions.empty();
        reader.read(block, take);
        if (isFirst && size)
            log.sessions.reserve(expectedCount(log.sessions.size(), block.size(), size.value()));
        return true;
    });
    if (!complete) return {};

    std::vector<Session>& sessions = log.sessions;
    if (!std::ranges::is_sorted(sessions, {}, &Session::endedAt))
        std::ranges::stable_sort(sessions, {}, &Session::endedAt);
    if (sessions.capacity() > sessions.size() + sessions.size() / 8) sessions.shrink_to_fit();
    return log;
}

Result<bool> SessionLog::rewrite(const QUuid& id, const Transform& transform) const {
    const QString path = m_paths.sessionsFile();
    auto file = m_paths.fileSystem().open(path, FileSystem::OpenMode::Read);
    if (!file) return false;

    QByteArray output;
    if (const auto size = file.value()->size()) output.reserve(size.value() + kRoomForANote);
    bool found = false;
    std::optional<Error> failure;
    sessionlines::Reader reader;
    LineCopier kept(output);
    const auto take = [&](QByteArrayView line, const std::optional<Session>& session) {
        if (!session || session->id != id) {
            kept.add(line);
            return;
        }
        kept.flush();
        found = true;
        const std::optional<Session> changed = transform(*session);
        if (!changed) return;
        const Result<QByteArray> encoded =
            isAcceptable(*changed) ? json::encode(*changed) : recordRefused(path);
        if (encoded)
            output.append(encoded.value()).append('\n');
        else if (!failure)
            failure = encoded.error();
    };
    const bool complete = forEachBlock(*file.value(), [&](QByteArrayView block) {
        if (!isUtf8(block)) return false;
        reader.read(block, take);
        kept.flush(); // the block is reused after this
        return true;
    });
    if (!complete) return false;
    if (failure) return *failure;
    if (!found) return false;
    const Result<> outcome =
        output.isEmpty() ? m_paths.removeForGood(path) : m_paths.writeProtected(output, path);
    if (!outcome) return outcome.error();
    return true;
}

} // namespace vantle
