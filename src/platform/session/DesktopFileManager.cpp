#include "platform/session/DesktopFileManager.h"

#include "platform/ProcessRunner.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <limits>

namespace vantle {

namespace {

/// No timeout: any error then means that nothing was or will be opened, because the file manager is
/// missing, failed to start, refused, or exited.
constexpr int kNoLimit = std::numeric_limits<int>::max();

} // namespace

Result<> DesktopFileManager::moveToTrash(const QString& path) {
    // Qt creates the trash but not its parent folder; without that the file would land in the
    // working directory.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile file(path);
    if (file.moveToTrash()) return {};
    return Error{0, QStringLiteral("move to trash"), path, file.errorString()};
}

void DesktopFileManager::reveal(const QString& path) {
    ask(QStringLiteral("ShowItems"), path, QFileInfo(path).path());
}

void DesktopFileManager::openFolder(const QString& path) {
    ask(QStringLiteral("ShowFolders"), path, path);
}

void DesktopFileManager::ask(const QString& method, const QString& path, const QString& folder) {
    // A call without a connection never returns.
    if (!m_session.isConnected()) return startOpener(folder);
    auto call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                       QStringLiteral("/org/freedesktop/FileManager1"),
                                       QStringLiteral("org.freedesktop.FileManager1"), method);
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* const answer =
        new QDBusPendingCallWatcher(m_session.asyncCall(call, kNoLimit), &m_answers);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [this, answer, folder] {
        if (answer->isError()) startOpener(folder);
        answer->deleteLater();
    });
}

void DesktopFileManager::startOpener(const QString& folder) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!opener.isEmpty()) (void)m_runner.startDetached({opener, {folder}});
}

} // namespace vantle
