#include "platform/posix/SettingsPreferences.h"

#include "platform/PreferenceText.h"
#include "platform/WholeFile.h"

#include <QCoreApplication>

#include <cerrno>

namespace vantle {

namespace {

constexpr int kPreferencesMode = 0600;
constexpr int kPrivateDirectory = 0700;

} // namespace

SettingsPreferences::SettingsPreferences(FileSystem& files, QString path)
    : m_files(files)
    , m_path(std::move(path))
    , m_settings(m_path, QSettings::IniFormat) {
    removeLeftLock();
    load();
}

SettingsPreferences::~SettingsPreferences() { passOnChanges(); }

/// QSettings locks the file while it writes, and waits half a minute on the main thread for a lock
/// that looks like another process's. A crash leaves it empty, before it was signed with the
/// process's number, or with a number that is taken again: in a sandbox it may be this one's.
void SettingsPreferences::removeLeftLock() {
    const QString lock = m_path + QStringLiteral(".lock");
    const auto signature = m_files.readAll(lock);
    if (!signature) return;
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid()) + '\n';
    if (signature.value().isEmpty() || signature.value().startsWith(own))
        m_files.remove(lock).ignore();
}

void SettingsPreferences::load() {
    for (const QString& key : m_settings.childKeys()) {
        // This class writes texts only; a list or another type is foreign.
        const QVariant value = m_settings.value(key);
        if (value.typeId() == QMetaType::QString) m_values[key] = value.toString();
    }
    m_settings.allKeys(); // parses the groups that were not read yet too
    if (m_settings.status() == QSettings::FormatError) m_original = Original::Unparsed;
    if (m_files.exists(m_path) && !m_files.readAll(m_path)) m_original = Original::Unreadable;
}

std::optional<bool> SettingsPreferences::boolean(const QString& key) const {
    return preferencetext::boolean(m_values.value(key));
}

std::optional<qint64> SettingsPreferences::integer(const QString& key) const {
    return preferencetext::integer(m_values.value(key));
}

std::optional<double> SettingsPreferences::number(const QString& key) const {
    return preferencetext::number(m_values.value(key));
}

std::optional<QString> SettingsPreferences::string(const QString& key) const {
    const auto value = m_values.find(key);
    return value == m_values.end() ? std::nullopt : std::optional(*value);
}

void SettingsPreferences::setBoolean(const QString& key, bool value) {
    setString(key, preferencetext::fromBoolean(value));
}

void SettingsPreferences::setInteger(const QString& key, qint64 value) {
    setString(key, preferencetext::fromInteger(value));
}

void SettingsPreferences::setNumber(const QString& key, double value) {
    setString(key, preferencetext::fromNumber(value));
}

void SettingsPreferences::setString(const QString& key, const QString& value) {
    m_values[key] = value;
    changeInFile(key);
    Q_EMIT changed(key);
}

void SettingsPreferences::remove(const QString& key) {
    // A value that is not a text counts as missing, but is removed too.
    const bool wasThere = m_values.remove(key) > 0;
    if (wasThere || m_settings.contains(key)) changeInFile(key);
    if (wasThere) Q_EMIT changed(key);
}

void SettingsPreferences::removeAll() {
    const QStringList removed = m_values.keys();
    m_values.clear();
    m_unsaved.clear();
    // Written before the file is removed, or a later write of the same values would restore it.
    m_settings.clear();
    m_settings.sync();
    m_files.remove(m_path).ignore();
    for (int number = 1; m_files.exists(nameOfCopy(number)); ++number)
        m_files.remove(nameOfCopy(number)).ignore();
    if (!m_files.exists(m_path)) m_original = Original::Sound;
    for (const QString& key : removed)
        Q_EMIT changed(key);
}

void SettingsPreferences::synchronize() {
    passOnChanges();
    m_settings.sync();
}

void SettingsPreferences::changeInFile(const QString& key) {
    m_unsaved.insert(key);
    passOnChanges();
}

void SettingsPreferences::passOnChanges() {
    if (m_unsaved.isEmpty() || !makeFileReady()) return;
    for (const QString& key : std::as_const(m_unsaved)) {
        if (const auto value = string(key))
            m_settings.setValue(key, *value);
        else
            m_settings.remove(key);
    }
    m_unsaved.clear();
}

/// Prepares the file for replacement and ensures that its successor is private from its first byte:
/// QSettings copies the old file's mode.
bool SettingsPreferences::makeFileReady() {
    const QString directory = m_path.left(m_path.lastIndexOf(QLatin1Char('/')));
    if (!m_files.makeDirectories(directory, kPrivateDirectory)) return false;
    if (!keepDamagedOriginal()) return false;
    if (m_files.exists(m_path)) return m_files.setMode(m_path, kPreferencesMode).ok();
    return createFile(m_files, m_path, {}).ok();
}

bool SettingsPreferences::keepDamagedOriginal() {
    if (m_original == Original::Sound) return true;
    int number = 1;
    while (m_files.exists(nameOfCopy(number)))
        ++number;
    if (m_original == Original::Unreadable) {
        if (!m_files.rename(m_path, nameOfCopy(number))) return false;
        // Values read before the file became unreadable go into the new one.
        const QStringList known = m_values.keys();
        m_unsaved.unite(QSet(known.begin(), known.end()));
    } else {
        const auto content = m_files.readAll(m_path);
        if (!content || !createFile(m_files, nameOfCopy(number), content.value())) return false;
    }
    m_original = Original::Sound;
    return true;
}

QString SettingsPreferences::nameOfCopy(int number) const {
    const QString first = m_path + QStringLiteral(".damaged");
    return number == 1 ? first : QStringLiteral("%1.%2").arg(first).arg(number);
}

} // namespace vantle
