#include "tracking/SessionLog.h"

#include "platform/FileSystem.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/LogBlocks.h"
#include "tracking/LogReader.h"
#include "tracking/SessionLines.h"

#include <cerrno>
#include <utility>

namespace vantle {

namespace {

/// Reserve for the growth of a rewritten log, in bytes.
constexpr qint64 kRoomForANote = 4096;

Error recordRefused(const QString& path) {
    return {0, QStringLiteral("check"), path,
            QStringLiteral("The record breaks the rules of the log")};
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
    LogReader reader(m_paths);
    LogReader::Log log = reader.read();
    reader.forget();
    return {std::move(log.sessions).take(), log.unreadable};
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
    const bool complete = logblocks::forEach(*file.value(), [&](QByteArrayView block) {
        if (!logblocks::isUtf8(block)) return false;
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
