#include "fakes/MemoryFileSystem.h"

#include "fakes/MemoryFile.h"

#include <cerrno>
#include <utility>

namespace vantle::fakes {

namespace {

constexpr qsizetype kLongestName = 255; // bytes, as NAME_MAX of common file systems
constexpr int kOwnerReads = 0400;
constexpr int kOwnerWrites = 0200;

QStringList partsOf(const QString& path) {
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

/// Where a path leads: the directory that holds it, its name there, and what stands there.
struct Place {
    MemoryNode::Pointer parent; ///< null when there is no way to it; `code` says why
    QString name;
    MemoryNode::Pointer node; ///< null when nothing stands there
    int code = ENOENT;

    /// Why what stands there can't be used as a file; 0 when it can.
    [[nodiscard]] int codeAsFile() const {
        if (!node) return code;
        return node->isDirectory ? EISDIR : 0;
    }
};

Place find(const MemoryNode::Pointer& root, const QString& path,
           MemoryNode::Entries MemoryNode::*entriesOf = &MemoryNode::entries) {
    const QStringList parts = partsOf(path);
    if (parts.isEmpty()) return {nullptr, {}, root, EBUSY};
    MemoryNode::Pointer parent = root;
    for (const QString& part : parts) {
        const bool isLast = &part == &parts.last();
        if (!parent->isDirectory) return {nullptr, part, nullptr, ENOTDIR};
        if (part.toUtf8().size() > kLongestName) return {nullptr, part, nullptr, ENAMETOOLONG};
        const auto& entries = (*parent).*entriesOf;
        const auto entry = entries.find(part);
        const MemoryNode::Pointer node = entry == entries.end() ? nullptr : entry->second;
        if (isLast) return {parent, part, node, ENOENT};
        if (!node) return {nullptr, part, nullptr, ENOENT};
        parent = node;
    }
    return {};
}

Error failure(int code, const QString& operation, const QString& path) {
    return Error::fromErrno(code, operation, path);
}

bool contains(const MemoryNode& above, const MemoryNode* below) {
    if (&above == below) return true;
    for (const auto& [name, node] : above.entries)
        if (contains(*node, below)) return true;
    return false;
}

void collectFiles(const MemoryNode& directory, const QString& path, QStringList& paths) {
    for (const auto& [name, node] : directory.entries) {
        const QString full = path + QLatin1Char('/') + name;
        if (node->isDirectory)
            collectFiles(*node, full, paths);
        else
            paths += full;
    }
}

class MemoryLock final : public FileLock {
public:
    explicit MemoryLock(MemoryNode::Pointer node) : m_node(std::move(node)) {
        m_node->lockHolder = this;
    }
    // After a crash the lock may have gone to another.
    ~MemoryLock() override {
        if (m_node->lockHolder == this) m_node->lockHolder = nullptr;
    }
    MemoryLock(const MemoryLock&) = delete;
    MemoryLock& operator=(const MemoryLock&) = delete;

private:
    const MemoryNode::Pointer m_node;
};

} // namespace

Result<std::unique_ptr<File>> MemoryFileSystem::open(const QString& path, OpenMode mode) {
    const QString operation =
        mode == OpenMode::CreateNew ? QStringLiteral("create") : QStringLiteral("open");
    Place place = find(m_disk->root, path);
    if (mode == OpenMode::CreateNew) {
        if (place.node) return failure(EEXIST, operation, path);
        if (!place.parent) return failure(place.code, operation, path);
        place.node = place.parent->entries[place.name] = MemoryNode::file(0600);
        m_disk->touch(*place.node);
        m_disk->onChange(
            {DiskChange::Kind::Enter, place.node, place.parent, place.name, {}, {}, {}});
    }
    if (const int code = place.codeAsFile()) return failure(code, operation, path);
    const int needed = mode == OpenMode::Read ? kOwnerReads : kOwnerWrites;
    if ((place.node->mode & needed) == 0) return failure(EACCES, operation, path);
    return std::unique_ptr<File>(std::make_unique<MemoryFile>(m_disk, place.node, mode, path));
}

bool MemoryFileSystem::exists(const QString& path) {
    return find(m_disk->root, path).node != nullptr;
}

Result<QStringList> MemoryFileSystem::names(const QString& directory) {
    const Place place = find(m_disk->root, directory);
    const int code = !place.node ? place.code : place.node->isDirectory ? 0 : ENOTDIR;
    if (code != 0) return failure(code, QStringLiteral("list"), directory);
    QStringList names;
    for (const auto& [name, node] : place.node->entries)
        names.append(name);
    return names;
}

Result<> MemoryFileSystem::makeDirectories(const QString& path, std::optional<int> mode) {
    QString level;
    for (const QString& part : partsOf(path)) {
        level += QLatin1Char('/') + part;
        const Place place = find(m_disk->root, level);
        if (place.node && !place.node->isDirectory)
            return failure(ENOTDIR, QStringLiteral("make directory"), level);
        if (place.node) continue;
        if (!place.parent) return failure(place.code, QStringLiteral("make directory"), level);
        const auto made = MemoryNode::directory(mode.value_or(kUsualDirectoryMode));
        place.parent->entries[place.name] = made;
        m_disk->onChange({DiskChange::Kind::Enter, made, place.parent, place.name, {}, {}, {}});
    }
    return {};
}

Result<> MemoryFileSystem::rename(const QString& from, const QString& to) {
    const QString operation = QStringLiteral("rename");
    const Place source = find(m_disk->root, from);
    const Place target = find(m_disk->root, to);
    if (!source.node || !source.parent) return failure(source.code, operation, from);
    if (!target.parent) return failure(target.code, operation, to);
    if (source.node == target.node) return {};
    if (contains(*source.node, target.parent.get())) return failure(EINVAL, operation, to);
    if (target.node && target.node->isDirectory != source.node->isDirectory)
        return failure(target.node->isDirectory ? EISDIR : ENOTDIR, operation, to);
    if (target.node && !target.node->entries.empty()) return failure(ENOTEMPTY, operation, to);
    target.parent->entries[target.name] = source.node;
    source.parent->entries.erase(source.name);
    source.node->changedAt = m_disk->now;
    m_disk->onChange({DiskChange::Kind::Move,
                      source.node,
                      source.parent,
                      source.name,
                      target.parent,
                      target.name,
                      {}});
    return {};
}

Result<> MemoryFileSystem::remove(const QString& path) {
    const Place place = find(m_disk->root, path);
    if (const int code = place.codeAsFile()) return failure(code, QStringLiteral("remove"), path);
    place.parent->entries.erase(place.name);
    m_disk->onChange({DiskChange::Kind::Leave, place.node, place.parent, place.name, {}, {}, {}});
    return {};
}

Result<> MemoryFileSystem::setMode(const QString& path, int mode) {
    const Place place = find(m_disk->root, path);
    if (!place.node) return failure(place.code, QStringLiteral("set mode of"), path);
    place.node->mode = mode;
    place.node->changedAt = m_disk->now;
    return {};
}

Result<int> MemoryFileSystem::mode(const QString& path) {
    const Place place = find(m_disk->root, path);
    if (!place.node) return failure(place.code, QStringLiteral("read mode of"), path);
    return place.node->mode;
}

Result<> MemoryFileSystem::syncDirectory(const QString& path) {
    const QString operation = QStringLiteral("sync directory");
    const Place place = find(m_disk->root, path);
    if (!place.node) return failure(place.code, operation, path);
    if (!place.node->isDirectory) return failure(ENOTDIR, operation, path);
    place.node->diskEntries = place.node->entries;
    m_disk->onChange({DiskChange::Kind::SyncDirectory, place.node, {}, {}, {}, {}, {}});
    return {};
}

FileSystem::LockAttempt MemoryFileSystem::lock(const QString& path) {
    Place place = find(m_disk->root, path);
    if (!place.node && place.parent) {
        place.node = place.parent->entries[place.name] = MemoryNode::file(0600);
        m_disk->touch(*place.node);
        m_disk->onChange(
            {DiskChange::Kind::Enter, place.node, place.parent, place.name, {}, {}, {}});
    }
    if (place.codeAsFile() != 0) return {};
    if (place.node->lockHolder) return {LockOutcome::TakenByOther, nullptr};
    return {LockOutcome::Held, std::make_unique<MemoryLock>(place.node)};
}

void MemoryFileSystem::setContent(const QString& path, const QByteArray& bytes, int mode) {
    setDirectory(path.left(path.lastIndexOf(QLatin1Char('/'))));
    const Place place = find(m_disk->root, path);
    const MemoryNode::Pointer node = place.node ? place.node : MemoryNode::file(mode);
    node->mode = mode;
    node->content = node->diskContent = bytes;
    place.parent->entries[place.name] = place.parent->diskEntries[place.name] = node;
    m_disk->touch(*node);
}

void MemoryFileSystem::setBytesUnnoticed(const QString& path, qsizetype at, QByteArrayView bytes) {
    find(m_disk->root, path).node->content.replace(at, bytes.size(), bytes);
}

void MemoryFileSystem::setModified(const QString& path, std::int64_t nanoseconds) {
    const Place place = find(m_disk->root, path);
    m_disk->touch(*place.node);
    place.node->modifiedAt = nanoseconds;
}

std::int64_t MemoryFileSystem::modified(const QString& path) const {
    return find(m_disk->root, path).node->modifiedAt;
}

void MemoryFileSystem::setDirectory(const QString& path, int mode) {
    MemoryNode::Pointer parent = m_disk->root;
    for (const QString& part : partsOf(path)) {
        MemoryNode::Pointer& node = parent->entries[part];
        if (!node) node = MemoryNode::directory(mode);
        parent->diskEntries[part] = node;
        parent = node;
    }
}

std::optional<QByteArray> MemoryFileSystem::content(const QString& path) const {
    const Place place = find(m_disk->root, path);
    if (place.codeAsFile() != 0) return std::nullopt;
    return place.node->content;
}

std::optional<QByteArray> MemoryFileSystem::contentOnDisk(const QString& path) const {
    const Place place = find(m_disk->root, path, &MemoryNode::diskEntries);
    if (place.codeAsFile() != 0) return std::nullopt;
    return place.node->diskContent;
}

QStringList MemoryFileSystem::paths() const {
    QStringList paths;
    collectFiles(*m_disk->root, {}, paths);
    paths.sort();
    return paths;
}

void MemoryFileSystem::crash(qsizetype tornTailBytes) {
    ++m_disk->starts;
    m_disk->root->crash(tornTailBytes);
}

} // namespace vantle::fakes
