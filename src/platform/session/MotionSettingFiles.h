// What the settings files of desktops say about movement.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <optional>

namespace vantle {

/// Reads the desktop's and the toolkits' files in a configuration directory, now and whenever one
/// of them appears, changes or goes. Main thread; the files are small.
class MotionSettingFiles final : public QObject {
    Q_OBJECT

public:
    /// The directory, as $XDG_CONFIG_HOME. One that is not there by now is not watched for.
    explicit MotionSettingFiles(QString directory);

    /// Whether movement is to be reduced: the first file that says anything counts. Empty when
    /// none does.
    [[nodiscard]] std::optional<bool> reduced() const { return m_reduced; }

Q_SIGNALS:
    /// The files were read again; reduced() may have changed.
    void changed();

private:
    void readAll();
    void watchWhatIsThere();

    const QString m_directory;
    QFileSystemWatcher m_watcher;
    std::optional<bool> m_reduced;
};

} // namespace vantle
