// The facts of an application's desktop entry.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vantle {

struct ApplicationEntry {
    QString id;                ///< file name without suffix, subfolders joined by "-"
    QString name;              ///< in the user's language where the entry has it
    QString windowClass;       ///< StartupWMClass
    QString program;           ///< base name of the Exec program; empty when invalid
    bool isShown = true;       ///< whether menus show it
    bool isTerminal = false;   ///< a terminal emulator
    bool isInTerminal = false; ///< runs in a terminal, which owns the window

    /// Parses the file's content. Empty for an entry that is no application or is marked as
    /// deleted; its id still hides entries of later folders. The name is in the environment's
    /// language. Replaces bytes that are not UTF-8. Any thread.
    [[nodiscard]] static std::optional<ApplicationEntry> read(const QString& id,
                                                              const QByteArray& content);
};

} // namespace vantle
