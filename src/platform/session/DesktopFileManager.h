// The file manager over the session bus, and the trash of the freedesktop.org kind.
#pragma once

#include "platform/FileManager.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace vantle {

class ProcessRunner;

/// Main thread. Opening returns at once and happens once: a file manager that takes long is waited
/// for without limit. Where the bus has none, the desktop's opener for folders is started. What
/// goes wrong shows nothing.
class DesktopFileManager final : public FileManager {
public:
    /// The runner must outlive this object. A missing bus is no failure.
    DesktopFileManager(QDBusConnection session, ProcessRunner& runner)
        : m_session(std::move(session))
        , m_runner(runner) {}

    /// Shows the file's folder with the file selected; an opener for folders selects nothing.
    void reveal(const QString& path) override;

    /// Shows the content of the folder.
    void openFolder(const QString& path) override;

    /// The trash of its disk if it is not that of the home.
    [[nodiscard]] Result<> moveToTrash(const QString& path) override;

private:
    void ask(const QString& method, const QString& path, const QString& folder);
    void startOpener(const QString& folder);

    QDBusConnection m_session;
    ProcessRunner& m_runner;
    QObject m_answers; ///< owns those that are waited for
};

} // namespace vantle
