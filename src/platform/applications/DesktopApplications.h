// The applications of this desktop as they are installed now.
#pragma once

#include "platform/WindowHints.h"
#include "platform/applications/DesktopEntryIndex.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <optional>

namespace vantle {

/// Keeps the index of desktop entries: read at the first question, and anew at the first one after
/// a folder of entries has changed. An entry that is written over in place is not noticed; packages
/// and editors replace the file. Main thread.
class DesktopApplications final : public QObject {
    Q_OBJECT

public:
    /// `folders` hold entries; of two with one id, that in the earlier folder counts.
    explicit DesktopApplications(QStringList folders);

    /// The folders of the freedesktop.org kind: `applications` under $XDG_DATA_HOME and each of
    /// $XDG_DATA_DIRS, and those of sandboxed applications. Absolute, in order.
    [[nodiscard]] static QStringList standardFolders();

    [[nodiscard]] Application identify(const WindowHints& hints);

    /// How often the entries were read, for tests and measurements.
    [[nodiscard]] int timesRead() const { return m_timesRead; }

private:
    void handleChange(const QString& path);
    void readAll();

    const QStringList m_folders;
    std::optional<DesktopEntryIndex> m_index; ///< empty when it must be read
    QStringList m_missing;                    ///< of the folders, when they were read
    QFileSystemWatcher m_watcher;
    int m_timesRead = 0;
};

} // namespace vantle
