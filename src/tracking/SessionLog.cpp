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

/// How much of the log is in memory at once while it is read, in bytes. Longer lines make it grow.
constexpr qsizetype kBlockSize = 1 << 20;

/// By how many bytes a rewritten log may well grow.
constexpr qint64 kRoomForANote = 4096;

bool isUtf8(QByteArrayView bytes) {
    return simdjson::validate_utf8(bytes.data(), static_cast<std::size_t>(bytes.size()));
}

Error recordRefused(const QString& path) {
    return {0, QStringLiteral("check"), path,
            QStringLiteral("The record breaks the rules of the log")};
}

/// How many records a file of `fileSize` bytes will hold, after `count` in its first `bytes`; some
/// more, since the estimate is not to fall short by a few.
std::size_t expectedCount(std::size_t count, qsizetype bytes, qint64 fileSize) {
    const double density = static_cast<double>(count) / static_cast<double>(bytes);
    return count + static_cast<std::size_t>(density * 1.03 * static_cast<double>(fileSize));
}

/// Calls `visit` with the file block by block, each a run of whole lines; the last may lack its
/// line feed. False when the file can't be read, or when `visit` returns false.
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

/// Copies lines byte for byte, each with a line feed after it; neighbours go in one piece.
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
    const char* m_begin = nullptr; ///< of the piece that is not copied yet
    const char* m_end = nullptr;
};

Result<> appendTo(File& file, QByteArrayView line) {
    const auto before = file.size();
    if (!before) return before.error();
    Result<> outcome = file.write(line);
    if (outcome) outcome = file.sync();
    if (!outcome) {
        // Half a line would swallow the next one.
        file.truncate(before.value()).ignore();
        return outcome;
    }
    return file.close();
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
        // Only the certainty that there is no log may start a new one: it replaces what is there.
        return file.error().code == ENOENT ? m_paths.writeProtected(line, path) : file.error();
    }
    if (auto appended = appendTo(*file.value(), line); !appended) return appended;
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
        // One bad byte hides the whole log: what a damaged disk left is not guessed at.
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
        kept.flush(); // the block's bytes are not there any more after this
        return true;
    });
    if (!complete) return false;
    if (failure) return *failure;
    if (!found) return false;
    const Result<> outcome =
        output.isEmpty() ? m_paths.removeIfPresent(path) : m_paths.writeProtected(output, path);
    if (!outcome) return outcome.error();
    return true;
}

} // namespace vantle
