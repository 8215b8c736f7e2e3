#include "platform/desktop/FileManager.h"

#include <QDBusMessage>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace vantle::filemanager {

namespace {

/// Longest wait for a file manager that the bus may have to start first.
constexpr int kAnswerMs = 2000;

/// Whether there is a file manager on the bus that has done as it was asked.
bool ask(const QDBusConnection& bus, const QString& method, const QString& path) {
    auto call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                       QStringLiteral("/org/freedesktop/FileManager1"),
                                       QStringLiteral("org.freedesktop.FileManager1"), method);
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    return bus.call(call, QDBus::Block, kAnswerMs).type() == QDBusMessage::ReplyMessage;
}

} // namespace

Result<> moveToTrash(const QString& path) {
    // Qt makes the trash but not the folder above it; without that one the file would land in the
    // working directory.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile file(path);
    if (file.moveToTrash()) return {};
    return Error{0, QStringLiteral("move to trash"), path, file.errorString()};
}

void reveal(const QDBusConnection& bus, const QString& path) {
    if (!ask(bus, QStringLiteral("ShowItems"), path))
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
}

void openFolder(const QDBusConnection& bus, const QString& path) {
    if (!ask(bus, QStringLiteral("ShowFolders"), path))
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace vantle::filemanager
