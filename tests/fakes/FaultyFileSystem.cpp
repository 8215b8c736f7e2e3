#include "fakes/FaultyFileSystem.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>

namespace vantle::fakes {

namespace {

bool matches(const QString& pattern, const QString& path) {
    if (path.isEmpty()) return false;
    if (pattern == path) return true;
    const QString name = path.sliced(path.lastIndexOf(QLatin1Char('/')) + 1);
    return QRegularExpression::fromWildcard(pattern, Qt::CaseSensitive).match(name).hasMatch();
}

} // namespace

class FaultyFileSystem::FaultyFile final : public File {
public:
    FaultyFile(FaultyFileSystem& files, std::unique_ptr<File> inner, QString path)
        : m_files(files)
        , m_inner(std::move(inner))
        , m_path(std::move(path)) {}

    Result<qint64> read(char* buffer, qint64 capacity) override {
        if (const auto error = fault(Operation::Read)) return *error;
        return m_inner->read(buffer, capacity);
    }
    Result<> write(QByteArrayView bytes) override {
        const bool wasDead = m_files.m_dead;
        const auto error = fault(Operation::Write);
        if (!error) return m_inner->write(bytes);
        if (!wasDead) m_inner->write(bytes.first(bytes.size() / 2)).ignore();
        return *error;
    }
    Result<qint64> size() override {
        if (const auto error = fault(Operation::Size)) return *error;
        return m_inner->size();
    }
    [[nodiscard]] std::optional<FileStamp> stamp() override {
        if (fault(Operation::Stamp)) return std::nullopt;
        return m_inner->stamp();
    }
    Result<> truncate(qint64 size) override {
        if (const auto error = fault(Operation::Truncate)) return *error;
        return m_inner->truncate(size);
    }
    Result<> sync() override {
        if (const auto error = fault(Operation::Sync)) return *error;
        return m_inner->sync();
    }
    Result<> close() override {
        const Result<> closed = m_inner->close();
        if (const auto error = fault(Operation::Close)) return *error;
        return closed;
    }

private:
    [[nodiscard]] std::optional<Error> fault(Operation operation) {
        return m_files.fault(operation, m_path);
    }

    FaultyFileSystem& m_files;
    const std::unique_ptr<File> m_inner;
    const QString m_path;
};

void FaultyFileSystem::failNthCall(int n, int errnoCode) {
    m_untilFailure = n;
    m_failureCode = errnoCode;
}

void FaultyFileSystem::dieAtNthCall(int n) { m_untilDeath = n; }

void FaultyFileSystem::fail(Operation operation, const QString& fileName, int errnoCode) {
    m_standing[{operation, fileName}] = errnoCode;
}

void FaultyFileSystem::heal(Operation operation, const QString& fileName) {
    m_standing.erase({operation, fileName});
}

void FaultyFileSystem::healAll() {
    m_standing.clear();
    m_untilFailure = m_untilDeath = 0;
    m_dead = false;
}

std::optional<Error> FaultyFileSystem::fault(Operation operation, const QString& path,
                                             const QString& target) {
    if (const auto call = onCall) call(operation);
    m_calls.push_back({operation, path, target});
    const QString words = QStringLiteral("fault in");
    if (m_untilDeath > 0 && --m_untilDeath == 0) m_dead = true;
    if (m_dead) return Error::fromErrno(EIO, words, path);
    if (m_untilFailure > 0 && --m_untilFailure == 0)
        return Error::fromErrno(m_failureCode, words, path);
    const auto standing = std::ranges::find_if(m_standing, [&](const auto& item) {
        const auto& [failing, name] = item.first;
        return failing == operation && (matches(name, path) || matches(name, target));
    });
    if (standing == m_standing.end()) return std::nullopt;
    return Error::fromErrno(standing->second, words, path);
}

Result<std::unique_ptr<File>> FaultyFileSystem::open(const QString& path, OpenMode mode) {
    const bool creates = mode == OpenMode::CreateNew;
    if (const auto error = fault(creates ? Operation::Create : Operation::Open, path))
        return *error;
    auto file = m_inner.open(path, mode);
    if (!file) return file.error();
    return std::unique_ptr<File>(
        std::make_unique<FaultyFile>(*this, std::move(file.value()), path));
}

bool FaultyFileSystem::exists(const QString& path) {
    return !fault(Operation::Exists, path) && m_inner.exists(path);
}

Result<QStringList> FaultyFileSystem::names(const QString& directory) {
    if (const auto error = fault(Operation::Names, directory)) return *error;
    return m_inner.names(directory);
}

Result<> FaultyFileSystem::makeDirectories(const QString& path, std::optional<int> mode) {
    if (const auto error = fault(Operation::MakeDirectories, path)) return *error;
    return m_inner.makeDirectories(path, mode);
}

Result<> FaultyFileSystem::rename(const QString& from, const QString& to) {
    if (const auto error = fault(Operation::Rename, from, to)) return *error;
    return m_inner.rename(from, to);
}

Result<> FaultyFileSystem::remove(const QString& path) {
    if (const auto error = fault(Operation::Remove, path)) return *error;
    return m_inner.remove(path);
}

Result<> FaultyFileSystem::setMode(const QString& path, int mode) {
    if (const auto error = fault(Operation::SetMode, path)) return *error;
    return m_inner.setMode(path, mode);
}

Result<int> FaultyFileSystem::mode(const QString& path) {
    if (const auto error = fault(Operation::Mode, path)) return *error;
    return m_inner.mode(path);
}

Result<> FaultyFileSystem::syncDirectory(const QString& path) {
    if (const auto error = fault(Operation::SyncDirectory, path)) return *error;
    return m_inner.syncDirectory(path);
}

FileSystem::LockAttempt FaultyFileSystem::lock(const QString& path) {
    if (fault(Operation::Lock, path)) return {};
    return m_inner.lock(path);
}

} // namespace vantle::fakes
