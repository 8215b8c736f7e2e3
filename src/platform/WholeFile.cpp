#include "platform/WholeFile.h"

#include <QRegularExpression>
#include <QUuid>

namespace vantle {

namespace {

constexpr int kPrivateDirectory = 0700;

Result<> fill(File& file, QByteArrayView content) {
    if (auto written = file.write(content); !written) return written;
    if (auto synced = file.sync(); !synced) return synced;
    return file.close();
}

} // namespace

Result<> createFile(FileSystem& files, const QString& path, QByteArrayView content) {
    const auto file = files.open(path, FileSystem::OpenMode::CreateNew);
    if (!file) return file.error();
    auto filled = fill(*file.value(), content);
    if (!filled) files.remove(path).ignore();
    return filled;
}

Result<> replaceFile(FileSystem& files, const QString& path, QByteArrayView content) {
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const QString directory = path.left(slash);
    if (auto made = files.makeDirectories(directory, kPrivateDirectory); !made) return made;

    const QString temporary =
        QStringLiteral("%1/.%2.%3.tmp")
            .arg(directory, path.mid(slash + 1),
                 QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
    if (auto created = createFile(files, temporary, content); !created) return created;
    if (auto renamed = files.rename(temporary, path); !renamed) {
        files.remove(temporary).ignore();
        return renamed;
    }
    // Without the sync a power loss could restore the old file. Ignored, since not every file
    // system supports it and the new content is in place.
    files.syncDirectory(directory).ignore();
    return {};
}

QString temporaryFileTarget(const QString& name) {
    static const QRegularExpression form(
        QStringLiteral("^\\.(.+)\\.[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\.tmp$"));
    return form.match(name).captured(1);
}

Result<> exportFile(FileSystem& files, const QString& path, QByteArrayView content) {
    const auto mode = files.exists(path) ? files.mode(path) : Result<int>(files.usualMode());
    if (auto replaced = replaceFile(files, path, content); !replaced) return replaced;
    // Some file systems have no modes.
    if (mode) files.setMode(path, mode.value()).ignore();
    return {};
}

} // namespace vantle
