#include "platform/applications/DesktopEntryIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace vantle {

namespace {

constexpr QLatin1String kSuffix(".desktop");
/// Largest file read, in bytes; entries with the most languages have about 50 KB.
constexpr qint64 kMaxEntrySize = 1 << 20;
constexpr int kMaxDepth = 8;

QString key(const QString& text) { return text.toCaseFolded(); }

/// Collects the entries of one folder tree.
struct Collector {
    std::vector<ApplicationEntry> entries;
    QSet<QString> ids;     ///< taken, also by deleted entries
    QSet<QString> folders; ///< visited, by real path

    void readFile(const QString& path, const QString& id) {
        QFile file(path);
        if (ids.contains(id) || !file.open(QIODevice::ReadOnly)) return;
        if (file.size() > kMaxEntrySize) return;
        ids.insert(id);
        if (auto entry = ApplicationEntry::read(id, file.readAll()))
            entries.push_back(std::move(*entry));
    }

    void readFolder(const QString& path, const QString& prefix, int depth) {
        const QString real = QFileInfo(path).canonicalFilePath();
        if (real.isEmpty() || depth > kMaxDepth || folders.contains(real)) return;
        folders.insert(real);
        const auto found =
            QDir(path).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo& info : found) {
            const QString name = info.fileName();
            if (info.isDir())
                readFolder(info.filePath(), prefix + name + QLatin1Char('-'), depth + 1);
            else if (name.endsWith(kSuffix) && info.isFile())
                readFile(info.filePath(), prefix + name.chopped(kSuffix.size()));
        }
    }
};

} // namespace

DesktopEntryIndex::DesktopEntryIndex(std::vector<ApplicationEntry> entries)
    : m_entries(std::move(entries)) {
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const auto& a, const auto& b) { return a.isShown && !b.isShown; });
    for (qsizetype i = 0; i < size(); ++i) {
        const ApplicationEntry& entry = m_entries[static_cast<std::size_t>(i)];
        if (m_byId.contains(key(entry.id))) continue;
        m_byId.insert(key(entry.id), i);
        if (!entry.windowClass.isEmpty()) m_byClass[key(entry.windowClass)].append(i);
        if (!entry.program.isEmpty()) m_byProgram[key(entry.program)].append(i);
        if (const qsizetype dot = entry.id.lastIndexOf(QLatin1Char('.')); dot >= 0)
            m_byComponent[key(entry.id.sliced(dot + 1))].append(i);
    }
}

DesktopEntryIndex DesktopEntryIndex::read(const QStringList& folders) {
    Collector collector;
    for (const QString& folder : folders)
        collector.readFolder(folder, {}, 0);
    return DesktopEntryIndex(std::move(collector.entries));
}

const ApplicationEntry* DesktopEntryIndex::byId(const QString& id) const {
    auto found = m_byId.constFind(key(id)); // an id itself may end so: "org.telegram.desktop"
    if (found == m_byId.cend() && id.endsWith(kSuffix))
        found = m_byId.constFind(key(id.chopped(kSuffix.size())));
    return found == m_byId.cend() ? nullptr : &m_entries[static_cast<std::size_t>(*found)];
}

DesktopEntryIndex::Matches DesktopEntryIndex::byWindowClass(const QString& windowClass) const {
    return matches(m_byClass, windowClass);
}

DesktopEntryIndex::Matches DesktopEntryIndex::byLastComponent(const QString& component) const {
    return matches(m_byComponent, component);
}

DesktopEntryIndex::Matches DesktopEntryIndex::byProgram(const QString& program) const {
    return matches(m_byProgram, program);
}

DesktopEntryIndex::Matches DesktopEntryIndex::matches(const Positions& positions,
                                                      const QString& text) const {
    Matches found;
    for (const qsizetype position : positions.value(key(text)))
        found.append(&m_entries[static_cast<std::size_t>(position)]);
    return found;
}

} // namespace vantle
