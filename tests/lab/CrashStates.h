// Every state in which a crash may leave a disk.
#pragma once

#include "fakes/MemoryFileSystem.h"

#include <QMap>

#include <optional>
#include <vector>

namespace vantle::tests {

/// Files with their content by path; a directory has none.
using DiskState = QMap<QString, std::optional<QByteArray>>;

/// Follows the changes of a disk and tells what a crash at this point may leave. Of a file that was
/// not synced: nothing, all, or a part of what is new, torn at multiples of `grain` bytes with the
/// rest missing or zero, or with one sector missing in the middle. Of names that were not synced:
/// each may be there or not, whatever became of the content behind it.
class CrashStates {
public:
    /// All that is on the disk now is safe.
    explicit CrashStates(const fakes::MemoryFileSystem& disk);

    void apply(const fakes::DiskChange& change);

    /// No two are the same.
    [[nodiscard]] std::vector<DiskState> all(qsizetype grain) const;

    /// Puts a state onto an empty disk.
    static void restore(const DiskState& state, fakes::MemoryFileSystem& disk);

private:
    using Node = fakes::MemoryNode;
    using Names = std::map<const Node*, std::map<QString, Node::Pointer>>;
    struct Content {
        QByteArray safe;
        QByteArrayList written; ///< after the last sync, oldest first
    };

    void keep(const Node::Pointer& directory);
    static void applyTo(Names& names, const fakes::DiskChange& change);
    [[nodiscard]] std::vector<std::vector<bool>> choicesOfNames() const;
    [[nodiscard]] QByteArrayList choicesOf(const Node& file, qsizetype grain) const;
    void collect(const Names& names, qsizetype grain, std::vector<DiskState>& states) const;

    Node::Pointer m_root;
    Names m_safeNames;
    std::vector<fakes::DiskChange> m_pending; ///< of names
    std::map<const Node*, Content> m_contents;
    std::vector<Node::Pointer> m_nodes; ///< keeps them, so that an address means one node
};

} // namespace vantle::tests
