// The user's shortcuts: the executables in one folder.
#pragma once

#include <QByteArray>
#include <QList>

namespace vantle {

/// Names are raw bytes, as in the file system. Blocks on the disk. Any thread.
class ShortcutsFolder {
public:
    explicit ShortcutsFolder(QByteArray path) : m_path(std::move(path)) {}

    /// `Vantle/shortcuts` under $XDG_CONFIG_HOME, else under ~/.config.
    [[nodiscard]] static ShortcutsFolder standard();

    /// Whether a file of that name can be a shortcut: one line of UTF-8 without a slash, not hidden
    /// (which excludes "." and "..").
    [[nodiscard]] static bool isName(const QByteArray& name);

    /// Returns the shortcuts, sorted by bytes; empty when there is no such folder. Links count as
    /// their target; broken and circular links are left out.
    [[nodiscard]] QList<QByteArray> names() const;

    /// Replaces this process by the shortcut. Returns only on failure.
    void become(const QByteArray& name) const;

private:
    [[nodiscard]] bool isShortcut(const QByteArray& name) const;
    [[nodiscard]] QByteArray pathOf(const QByteArray& name) const { return m_path + '/' + name; }

    QByteArray m_path;
};

} // namespace vantle
