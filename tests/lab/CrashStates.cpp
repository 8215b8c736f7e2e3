#include "lab/CrashStates.h"

#include <QSet>

#include <algorithm>

namespace vantle::tests {

namespace {

using Kind = fakes::DiskChange::Kind;

/// More unsafe names than that are taken away from the end, and one by one, not in every selection.
constexpr std::size_t kMostSelections = 4;

QByteArray zeros(qsizetype count) { return QByteArray(count, '\0'); }

QByteArray digest(const DiskState& state) {
    QByteArray all;
    for (auto entry = state.cbegin(); entry != state.cend(); ++entry)
        all += entry.key().toUtf8() + '\0' + (entry.value() ? "f" : "d") +
               entry.value().value_or(QByteArray()) + '\0';
    return all;
}

} // namespace

CrashStates::CrashStates(const fakes::MemoryFileSystem& disk) : m_root(disk.root()) {
    keep(m_root);
}

void CrashStates::keep(const Node::Pointer& directory) {
    m_nodes.push_back(directory);
    m_safeNames[directory.get()] = directory->diskEntries;
    for (const auto& [name, node] : directory->diskEntries) {
        if (node->isDirectory) {
            keep(node);
        } else {
            m_nodes.push_back(node);
            m_contents[node.get()].safe = node->diskContent;
        }
    }
}

void CrashStates::apply(const fakes::DiskChange& change) {
    m_nodes.push_back(change.node);
    Content& content = m_contents[change.node.get()];
    switch (change.kind) {
    case Kind::Enter:
    case Kind::Leave:
    case Kind::Move:
        m_pending.push_back(change);
        break;
    case Kind::Write:
        content.written.append(change.content);
        break;
    case Kind::SyncFile:
        content = {change.content, {}};
        break;
    case Kind::SyncDirectory:
        for (const auto& pending : m_pending)
            if (pending.directory == change.node || pending.toDirectory == change.node)
                applyTo(m_safeNames, pending);
        std::erase_if(m_pending, [&](const fakes::DiskChange& pending) {
            return pending.directory == change.node || pending.toDirectory == change.node;
        });
        break;
    }
}

void CrashStates::applyTo(Names& names, const fakes::DiskChange& change) {
    auto& from = names[change.directory.get()];
    if (change.kind == Kind::Enter) {
        from[change.name] = change.node;
        return;
    }
    const auto found = from.find(change.name);
    if (found != from.end() && found->second == change.node) from.erase(found);
    if (change.kind == Kind::Move) names[change.toDirectory.get()][change.toName] = change.node;
}

std::vector<std::vector<bool>> CrashStates::choicesOfNames() const {
    const std::size_t count = m_pending.size();
    std::vector<std::vector<bool>> choices;
    if (count <= kMostSelections) {
        for (std::size_t bits = 0; bits < (std::size_t{1} << count); ++bits) {
            choices.emplace_back(count);
            for (std::size_t i = 0; i < count; ++i)
                choices.back()[i] = (bits >> i & 1) != 0;
        }
        return choices;
    }
    for (std::size_t first = 0; first <= count; ++first) {
        std::vector<bool> choice(count, false);
        std::fill_n(choice.begin(), first, true);
        choices.push_back(choice);
        if (first == count) break;
        choice.assign(count, true);
        choice[first] = false;
        choices.push_back(choice);
    }
    return choices;
}

QByteArrayList CrashStates::choicesOf(const Node& file, qsizetype grain) const {
    const auto found = m_contents.find(&file);
    if (found == m_contents.end()) return {QByteArray()};
    const auto& [safe, written] = found->second;
    QByteArrayList choices = written;
    choices.append(safe);
    if (!written.isEmpty() && written.last().startsWith(safe)) {
        const QByteArray& now = written.last();
        const qsizetype first = (safe.size() + grain - 1) / grain * grain;
        for (qsizetype at = safe.size(); at < now.size(); at = at < first ? first : at + grain) {
            choices.append(now.first(at));
            choices.append(now.first(at) + zeros(now.size() - at));
            const qsizetype end = std::min((at / grain + 1) * grain, now.size());
            if (end < now.size()) choices.append(now.first(at) + zeros(end - at) + now.sliced(end));
        }
    }
    const QSet<QByteArray> distinct(choices.cbegin(), choices.cend());
    return {distinct.cbegin(), distinct.cend()};
}

void CrashStates::collect(const Names& names, qsizetype grain,
                          std::vector<DiskState>& states) const {
    DiskState certain;
    QMap<QString, QByteArrayList> open;
    const std::function<void(const Node*, const QString&)> walk = [&](const Node* directory,
                                                                      const QString& path) {
        const auto found = names.find(directory);
        if (found == names.end()) return;
        for (const auto& [name, node] : found->second) {
            const QString full = path + QLatin1Char('/') + name;
            if (node->isDirectory) {
                certain.insert(full, std::nullopt);
                walk(node.get(), full);
                continue;
            }
            const QByteArrayList choices = choicesOf(*node, grain);
            if (choices.size() == 1)
                certain.insert(full, choices.first());
            else
                open.insert(full, choices);
        }
    };
    walk(m_root.get(), {});
    std::vector<DiskState> product{certain};
    for (auto file = open.cbegin(); file != open.cend(); ++file) {
        std::vector<DiskState> longer;
        longer.reserve(product.size() * std::size_t(file.value().size()));
        for (const DiskState& state : product)
            for (const QByteArray& content : file.value()) {
                longer.push_back(state);
                longer.back().insert(file.key(), content);
            }
        product = std::move(longer);
    }
    states.insert(states.end(), product.begin(), product.end());
}

std::vector<DiskState> CrashStates::all(qsizetype grain) const {
    std::vector<DiskState> states;
    for (const std::vector<bool>& landed : choicesOfNames()) {
        Names names = m_safeNames;
        for (std::size_t i = 0; i < m_pending.size(); ++i)
            if (landed[i]) applyTo(names, m_pending[i]);
        collect(names, grain, states);
    }
    QSet<QByteArray> seen;
    std::erase_if(states, [&](const DiskState& state) {
        const QByteArray key = digest(state);
        const bool isKnown = seen.contains(key);
        seen.insert(key);
        return isKnown;
    });
    return states;
}

void CrashStates::restore(const DiskState& state, fakes::MemoryFileSystem& disk) {
    for (auto entry = state.cbegin(); entry != state.cend(); ++entry) {
        if (entry.value())
            disk.setContent(entry.key(), *entry.value());
        else
            disk.setDirectory(entry.key(), 0700);
    }
}

} // namespace vantle::tests
