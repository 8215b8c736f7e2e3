// The preference store in an INI file.
#pragma once

#include "platform/FileSystem.h"
#include "platform/Preferences.h"

#include <QMap>
#include <QSet>
#include <QSettings>
#include <QStringList>

namespace vantle {

/// Preferences in the group `General`, keys as named: `skill.lastUsed=building`. Read once, at
/// construction; written atomically from the event loop soon after a change. Keeps other groups and
/// keys that an editor adds. The file has mode 0600; a directory created here has 0700.
///
/// A file that cannot be parsed is copied to `{name}.damaged`, or the next free `{name}.damaged.2`,
/// before it is first replaced, and readable values stay in use; an unreadable file is moved there.
/// When that fails too, the file is left alone and changes apply to this run only.
///
/// For one writer at a time, as the program is: a lock that a crash left is removed at
/// construction. Main thread.
class SettingsPreferences final : public Preferences {
    Q_OBJECT

public:
    /// `files` must outlive this object.
    SettingsPreferences(FileSystem& files, QString path);
    ~SettingsPreferences() override;

    [[nodiscard]] std::optional<bool> boolean(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integer(const QString& key) const override;
    [[nodiscard]] std::optional<double> number(const QString& key) const override;
    [[nodiscard]] std::optional<QString> string(const QString& key) const override;
    void setBoolean(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setNumber(const QString& key, double value) override;
    void setString(const QString& key, const QString& value) override;
    void remove(const QString& key) override;

    /// Removes the copies of damaged files too, since they hold the same private values.
    void removeAll() override;
    void synchronize() override;

private:
    /// What must be preserved of the file before it may be replaced.
    enum class Original { Sound, Unparsed, Unreadable };

    void removeLeftLock();
    void load();
    void changeInFile(const QString& key);
    void passOnChanges();
    [[nodiscard]] bool makeFileReady();
    [[nodiscard]] bool keepDamagedOriginal();
    [[nodiscard]] QString nameOfCopy(int number) const;

    FileSystem& m_files;
    const QString m_path;
    Original m_original = Original::Sound;
    QMap<QString, QString> m_values; ///< the values of this run
    QSet<QString> m_unsaved;         ///< keys changed since m_settings was last written
    QSettings m_settings;            ///< reads, merges and writes the file
};

} // namespace vantle
