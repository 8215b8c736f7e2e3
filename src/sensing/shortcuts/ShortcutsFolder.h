// Shortcuts: the executables in one folder.
#pragma once

#include <QByteArray>
#include <QList>

#include <vector>

namespace vantle {

/// Names are raw bytes, as in the file system. Blocks on the disk. Any thread.
class ShortcutsFolder {
public:
    explicit ShortcutsFolder(QByteArray path) : m_path(std::move(path)) {}

    /// The user's own, then those that come with the program; a name is looked for in this order.
    /// `Vantle/shortcuts` under $XDG_CONFIG_HOME, else under ~/.config; `share/vantle/shortcuts`
    /// of the place that the program is installed in; the tree that it was built from, unless it
    /// was built for a package. They need not exist.
    [[nodiscard]] static std::vector<ShortcutsFolder> all();

    /// Whether a file of that name can be a shortcut: one line of UTF-8 without a slash, not hidden
    /// (which excludes "." and "..").
    [[nodiscard]] static bool isName(const QByteArray& name);

    /// Returns the shortcuts, sorted by bytes; empty when there is no such folder. Links count as
    /// their target; broken and circular links are left out.
    [[nodiscard]] QList<QByteArray> names() const;

    [[nodiscard]] bool isShortcut(const QByteArray& name) const;

    /// Replaces this process by the shortcut. Returns only on failure.
    void become(const QByteArray& name) const;

private:
    [[nodiscard]] QByteArray pathOf(const QByteArray& name) const { return m_path + '/' + name; }

    QByteArray m_path;
};

} // namespace vantle
