// The installed applications of this desktop.
#pragma once

#include "platform/WindowHints.h"
#include "platform/applications/DesktopEntryIndex.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <optional>

namespace vantle {

/// An index of the desktop entries: read at the first query, and again at the first one after an
/// entry folder changed. Misses entries rewritten in place; packages and editors replace files.
/// Main thread.
class DesktopApplications final : public QObject {
    Q_OBJECT

public:
    /// `folders` hold the entries; of two with one id the earlier folder wins.
    explicit DesktopApplications(QStringList folders);

    /// Returns the freedesktop.org folders, absolute and in order: `applications` under
    /// $XDG_DATA_HOME and each of $XDG_DATA_DIRS, and those of sandboxes.
    [[nodiscard]] static QStringList standardFolders();

    [[nodiscard]] Application identify(const WindowHints& hints);

    /// How often the entries were read, for tests and benchmarks.
    [[nodiscard]] int timesRead() const { return m_timesRead; }

private:
    void handleChange(const QString& path);
    void readAll();

    const QStringList m_folders;
    std::optional<DesktopEntryIndex> m_index; ///< empty when it must be read again
    QStringList m_missing;                    ///< folders that were missing at that time
    QFileSystemWatcher m_watcher;
    int m_timesRead = 0;
};

} // namespace vantle
