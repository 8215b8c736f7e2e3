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
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("/org/freedesktop/FileManager1"),
                                               QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    const auto answer = bus.call(call, QDBus::Block, kAnswerMs);
    if (answer.type() == QDBusMessage::ReplyMessage) return;
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
}

} // namespace vantle::filemanager
