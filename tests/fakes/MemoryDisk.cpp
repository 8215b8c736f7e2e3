#include "fakes/MemoryDisk.h"

#include <algorithm>

namespace vantle::fakes {

MemoryNode::Pointer MemoryNode::file(int mode) {
    auto node = std::make_shared<MemoryNode>();
    node->mode = mode;
    return node;
}

MemoryNode::Pointer MemoryNode::directory(int mode) {
    auto node = file(mode);
    node->isDirectory = true;
    return node;
}

qint64 MemoryNode::bytes() const {
    qint64 sum = content.size();
    for (const auto& [name, node] : entries)
        sum += node->bytes();
    return sum;
}

void MemoryNode::crash(qsizetype tornTailBytes) {
    // A tail can only be torn off what was appended; content that was cut or changed in place is
    // simply the old one again.
    const bool appended = content.startsWith(diskContent);
    content = appended ? content.first(std::min(content.size(), diskContent.size() + tornTailBytes))
                       : diskContent;
    diskContent = content;
    entries = diskEntries;
    lockHolder = nullptr;
    for (const auto& [name, node] : entries)
        node->crash(tornTailBytes);
}

qint64 MemoryDisk::room() const { return std::max<qint64>(0, capacity - root->bytes()); }

} // namespace vantle::fakes
