// The file manager on the session bus, and the freedesktop.org trash.
#pragma once

#include "platform/FileManager.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace vantle {

class ProcessRunner;

/// Opening does not block and happens once; the reply has no timeout. Without a file manager on the
/// bus it starts the desktop's opener. Failures are silent. Main thread.
class DesktopFileManager final : public FileManager {
public:
    /// The runner must outlive this object. A missing bus is no failure.
    DesktopFileManager(QDBusConnection session, ProcessRunner& runner)
        : m_session(std::move(session))
        , m_runner(runner) {}

    /// The runner must outlive this object. Works without a bus.
    void reveal(const QString& path) override;

    /// Shows the file selected in its folder; the opener selects nothing.
    void openFolder(const QString& path) override;

    [[nodiscard]] Result<> moveToTrash(const QString& path) override;

private:
    void ask(const QString& method, const QString& path, const QString& folder);
    void startOpener(const QString& folder);

    QDBusConnection m_session;
    ProcessRunner& m_runner;
    QObject m_answers; ///< owns the pending replies
};

} // namespace vantle
