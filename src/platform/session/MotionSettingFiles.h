// The reduced motion settings in the desktops' files.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

/// Reads the small files of desktops and toolkits in a configuration directory, now and at each
/// change. Main thread.
class MotionSettingFiles final : public QObject {
    Q_OBJECT

public:
    /// `directory` is $XDG_CONFIG_HOME. A directory missing at construction is not watched.
    explicit MotionSettingFiles(QString directory);

    /// The setting of the first file that has one; empty when none has.
    [[nodiscard]] std::optional<bool> reduced() const { return m_reduced; }

Q_SIGNALS:
    /// The files were reread; reduced() may have changed.
    void changed();

private:
    void readAll();
    void watchWhatIsThere();

    const QString m_directory;
    QFileSystemWatcher m_watcher;
    std::optional<bool> m_reduced;
};

} // namespace vantle
