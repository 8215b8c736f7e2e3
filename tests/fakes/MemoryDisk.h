// What MemoryFileSystem and its open files share: the nodes, and the state of the disk as a whole.
#pragma once

#include <QByteArray>
#include <QString>

#include <limits>
#include <map>
#include <memory>

namespace vantle::fakes {

/// A file or a directory, apart from its name. The `disk` members are what a crash leaves.
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

    [[nodiscard]] static Pointer file(int mode);
    [[nodiscard]] static Pointer directory(int mode);

    /// The bytes of all files at and below this node.
    [[nodiscard]] qint64 bytes() const;

    /// Makes this node and all that is left below it what the disk holds.
    void crash(qsizetype tornTailBytes);
};

struct MemoryDisk {
    MemoryNode::Pointer root = MemoryNode::directory(0755);
    qint64 capacity = std::numeric_limits<qint64>::max();
    int starts = 0; ///< counts crashes: what was opened before the last one is dead

    /// How many bytes can still be written.
    [[nodiscard]] qint64 room() const;
};

} // namespace vantle::fakes
