// The nodes and the state of a disk in memory.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>

namespace vantle::fakes {

/// A file or directory without its name. The `disk` members are what a crash leaves.
struct MemoryNode {
    using Pointer = std::shared_ptr<MemoryNode>;
    using Entries = std::map<QString, Pointer>;

    bool isDirectory = false;
    int mode = 0;
    QByteArray content;
    QByteArray diskContent;
    Entries entries;
    Entries diskEntries;
    const void* lockHolder = nullptr;
    std::int64_t modifiedAt = 0; ///< of the content, in nanoseconds since 1970
    std::int64_t changedAt = 0;  ///< of content, mode or name

    [[nodiscard]] static Pointer file(int mode);
    [[nodiscard]] static Pointer directory(int mode);

    /// Returns the bytes of all files at and below this node.
    [[nodiscard]] qint64 bytes() const;

    /// Resets this node and everything below it to the state on disk.
    void crash(qsizetype tornTailBytes);
};

/// One completed change of the disk. Without locks and modes: a crash loses no file and no byte by
/// them.
struct DiskChange {
    enum class Kind {
        Enter,         ///< `node` got the name `name` in `directory`
        Leave,         ///< the name `name` was taken out of `directory`
        Move,          ///< `node` went from there to `toName` in `toDirectory`
        Write,         ///< the file `node` holds `content` now
        SyncFile,      ///< the content of `node` is safe
        SyncDirectory, ///< the names in the directory `node` are safe
    };
    Kind kind = Kind::Enter;
    MemoryNode::Pointer node;
    MemoryNode::Pointer directory;
    QString name;
    MemoryNode::Pointer toDirectory;
    QString toName;
    QByteArray content;
};

struct MemoryDisk {
    MemoryNode::Pointer root = MemoryNode::directory(0755);
    qint64 capacity = std::numeric_limits<qint64>::max();
    std::int64_t now = 0; ///< clock of the file system, in nanoseconds since 1970
    int starts = 0;       ///< number of crashes: files opened before the last one are dead
    std::function<void(const DiskChange&)> onChange = [](const DiskChange&) {};

    /// Returns how many bytes can still be written.
    [[nodiscard]] qint64 room() const;

    /// Sets the times of a node whose content has changed.
    void touch(MemoryNode& node) const { node.modifiedAt = node.changedAt = now; }
};

} // namespace vantle::fakes
