// The preference store in an INI file that people can read and edit.
#pragma once

#include "platform/FileSystem.h"
#include "platform/Preferences.h"

#include <QMap>
#include <QSet>
#include <QSettings>
#include <QStringList>

namespace vantle {

/// Preferences in the group `General` of an INI file, the keys as they are named:
/// `skill.lastUsed=building`. Read once, at construction; written from the event loop soon after a
/// change, whole and in one step. Other groups, and keys that an editor adds meanwhile, are kept.
/// The file has mode 0600, its directory 0700 when it is made here.
///
/// A file that can't be parsed is copied beside it, as `{name}.damaged` or the next free
/// `{name}.damaged.2`, before it is first written over, and what could be read of it stays in use;
/// one that can't be read at all is moved there. Where even that fails the file is left alone, and
/// changes hold for this run only. Main thread.
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

    /// Removes the copies of damaged files as well: they hold the same private values.
    void removeAll() override;
    void synchronize() override;

private:
    /// What stands in the file, as far as it is still to be kept before it may be replaced.
    enum class Original { Sound, Unparsed, Unreadable };

    void load();
    void changeInFile(const QString& key);
    void passOnChanges();
    [[nodiscard]] bool makeFileReady();
    [[nodiscard]] bool keepDamagedOriginal();
    [[nodiscard]] QString nameOfCopy(int number) const;

    FileSystem& m_files;
    const QString m_path;
    Original m_original = Original::Sound;
    QMap<QString, QString> m_values; ///< what holds in this run
    QSet<QString> m_unsaved;         ///< keys whose change m_settings does not know yet
    QSettings m_settings;            ///< reads, merges and writes the file
};

} // namespace vantle
