// The index of desktop entries by what windows call themselves.
#pragma once

#include "platform/applications/ApplicationEntry.h"

#include <QHash>
#include <QList>

#include <vector>

namespace vantle {

/// A plain value; ignores case. Any thread.
class DesktopEntryIndex {
public:
    DesktopEntryIndex() = default;
    /// Of two entries with one id the first wins.
    explicit DesktopEntryIndex(std::vector<ApplicationEntry> entries);

    /// Reads all entries below `folders`, in order. Skips unreadable files, files larger than any
    /// entry, and link cycles. Blocks while it reads some hundred small files.
    [[nodiscard]] static DesktopEntryIndex read(const QStringList& folders);

    using Matches = QList<const ApplicationEntry*>;

    /// Returns the entry with that id, with or without ".desktop"; null when there is none.
    [[nodiscard]] const ApplicationEntry* byId(const QString& id) const;
    /// Returns the entries with that StartupWMClass; shown ones first, then in folder order. Same
    /// order below.
    [[nodiscard]] Matches byWindowClass(const QString& windowClass) const;
    /// Returns the entries whose id ends in ".{component}".
    [[nodiscard]] Matches byLastComponent(const QString& component) const;
    /// Returns the entries whose Exec starts that program.
    [[nodiscard]] Matches byProgram(const QString& program) const;

    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(m_entries.size()); }

private:
    using Positions = QHash<QString, QList<qsizetype>>;
    [[nodiscard]] Matches matches(const Positions& positions, const QString& key) const;

    std::vector<ApplicationEntry> m_entries; ///< shown ones first
    QHash<QString, qsizetype> m_byId;
    Positions m_byClass, m_byComponent, m_byProgram;
};

} // namespace vantle
