#include "lab/Sabotage.h"

#include <utility>

namespace vantle::tests {

Saboteur::Saboteur(Sabotage sabotage, const fakes::MemoryFileSystem& disk)
    : m_sabotage(std::move(sabotage)) {
    learn(*disk.root());
}

void Saboteur::learn(const fakes::MemoryNode& directory) {
    for (const auto& [name, node] : directory.entries) {
        m_names[node.get()] = name;
        if (node->isDirectory) learn(*node);
    }
}

bool Saboteur::pass(fakes::DiskChange& change) {
    if (change.kind == fakes::DiskChange::Kind::Enter) m_names[change.node.get()] = change.name;
    const QString name = m_names[change.node.get()];
    if (change.kind == fakes::DiskChange::Kind::Move) m_names[change.node.get()] = change.toName;
    if (change.kind != m_sabotage.kind || !name.contains(QLatin1String(m_sabotage.file)))
        return true;
    switch (m_sabotage.effect) {
    case Sabotage::Effect::None:
        return true;
    case Sabotage::Effect::Unsafe:
        return false;
    case Sabotage::Effect::Altered:
        change.node->content = change.content = m_sabotage.alter(change.content);
        return true;
    case Sabotage::Effect::Undone:
        // Of names that leave their directory.
        change.directory->entries[change.name] = change.node;
        return false;
    }
    Q_UNREACHABLE();
}

} // namespace vantle::tests
