#include "platform/session/MotionSettingFiles.h"

#include <QFile>
#include <QFileInfo>

#include <array>

namespace vantle {

namespace {

/// Returns the value of a key in a group of an INI file; empty when missing. QSettings is
/// unsuitable: it compares size and time stamp and misses quick changes.
QString iniValue(const QString& path, const char* group, const char* key) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    bool inGroup = false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('[')) inGroup = line == '[' + QByteArray(group) + ']';
        const qsizetype equals = line.indexOf('=');
        if (inGroup && equals >= 0 && line.first(equals).trimmed() == key)
            return QString::fromUtf8(line.sliced(equals + 1).trimmed());
    }
    return {};
}

struct Place {
    const char* file;
    const char* group;
    const char* key;
    std::optional<bool> (*reduces)(const QString& value);
};

/// Parses a factor on the desktop's durations; 0 is "instant".
std::optional<bool> factorIsZero(const QString& value) {
    bool isNumber = false;
    const double factor = value.toDouble(&isNumber);
    if (!isNumber) return std::nullopt;
    return factor == 0.0;
}

/// Parses a switch for animations.
std::optional<bool> isOff(const QString& value) {
    if (value == QLatin1String("0") || value == QLatin1String("false")) return true;
    if (value == QLatin1String("1") || value == QLatin1String("true")) return false;
    return std::nullopt;
}

constexpr std::array kPlaces{
    Place{"kdeglobals", "KDE", "AnimationDurationFactor", factorIsZero},
    Place{"gtk-4.0/settings.ini", "Settings", "gtk-enable-animations", isOff},
    Place{"gtk-3.0/settings.ini", "Settings", "gtk-enable-animations", isOff},
};

} // namespace

MotionSettingFiles::MotionSettingFiles(QString directory) : m_directory(std::move(directory)) {
    const auto readAgain = [this] {
        readAll();
        Q_EMIT changed();
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, readAgain);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, readAgain);
    readAll();
}

void MotionSettingFiles::readAll() {
    watchWhatIsThere(); // before reading, so that no change is missed
    m_reduced.reset();
    for (const Place& place : kPlaces) {
        const QString path = m_directory + QLatin1Char('/') + QLatin1String(place.file);
        m_reduced = place.reduces(iniValue(path, place.group, place.key));
        if (m_reduced) return;
    }
}

void MotionSettingFiles::watchWhatIsThere() {
    // Directories, for files that appear or are replaced; files, for those rewritten in place. The
    // watcher drops a replaced file, so this runs at every change.
    const auto watch = [this](const QString& path) {
        if (!m_watcher.directories().contains(path) && !m_watcher.files().contains(path) &&
            QFileInfo::exists(path))
            m_watcher.addPath(path);
    };
    watch(m_directory);
    for (const Place& place : kPlaces) {
        const QFileInfo file(m_directory + QLatin1Char('/') + QLatin1String(place.file));
        watch(file.path());
        watch(file.filePath());
    }
}

} // namespace vantle
