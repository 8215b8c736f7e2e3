// The applications of this desktop, found by what their windows call themselves.
#pragma once

#include "platform/applications/ApplicationEntry.h"

#include <QHash>
#include <QList>

#include <vector>

namespace vantle {

/// A plain value that finds entries by each of their marks. Letters of either case are the same.
class DesktopEntryIndex {
public:
    DesktopEntryIndex() = default;
    /// Of two entries with one id the first counts.
    explicit DesktopEntryIndex(std::vector<ApplicationEntry> entries);

    /// Reads all entries below `folders`, in this order. A file that can't be read, one that is
    /// larger than any entry, and a folder that a link leads back into are passed over. Blocks for
    /// the time of reading some hundred small files.
    [[nodiscard]] static DesktopEntryIndex read(const QStringList& folders);

    using Matches = QList<const ApplicationEntry*>;

    /// The entry of that id, with or without ".desktop". Null when there is none.
    [[nodiscard]] const ApplicationEntry* byId(const QString& id) const;
    /// Those whose StartupWMClass it is; shown ones first, else in the order of the folders. So for
    /// all below.
    [[nodiscard]] Matches byWindowClass(const QString& windowClass) const;
    /// Those whose id ends in ".{component}".
    [[nodiscard]] Matches byLastComponent(const QString& component) const;
    /// Those whose Exec starts a program of that base name.
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
