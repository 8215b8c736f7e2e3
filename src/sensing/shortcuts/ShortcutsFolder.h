// A person's shortcuts: the executables in one folder, by their names.
#pragma once

#include <QByteArray>
#include <QList>

namespace vantle {

/// Names are bytes, as the file system keeps them. Blocks.
class ShortcutsFolder {
public:
    explicit ShortcutsFolder(QByteArray path) : m_path(std::move(path)) {}

    /// `Vantle/shortcuts` under $XDG_CONFIG_HOME, else under ~/.config.
    [[nodiscard]] static ShortcutsFolder standard();

    /// Whether a file of that name could be a shortcut: one line of UTF-8 without a slash, and not
    /// hidden, which ".." and "." are as well.
    [[nodiscard]] static bool isName(const QByteArray& name);

    /// The shortcuts, sorted by bytes. Links count as what they lead to; one that leads nowhere or
    /// in a circle is none. Empty when there is no such folder.
    [[nodiscard]] QList<QByteArray> names() const;

    /// Becomes that shortcut. Returns only on failure.
    void become(const QByteArray& name) const;

private:
    [[nodiscard]] bool isShortcut(const QByteArray& name) const;
    [[nodiscard]] QByteArray pathOf(const QByteArray& name) const { return m_path + '/' + name; }

    QByteArray m_path;
};

} // namespace vantle
