// What a desktop entry says about an application.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vantle {

struct ApplicationEntry {
    QString id;              ///< the file's name without suffix, subfolders joined by "-"
    QString name;            ///< in the user's language where the entry has it
    QString windowClass;     ///< StartupWMClass
    QString program;         ///< base name of the program that Exec starts; empty when it is broken
    bool isShown = true;     ///< in menus
    bool isTerminal = false; ///< in which people start programs of any kind
    bool isInTerminal = false; ///< its program runs in a terminal, which has the window

    /// Reads the file's content. Empty for what is no application or is marked as deleted; such a
    /// file still keeps its id from entries further down. The name is in the language that the
    /// environment asks for. Any thread; bytes that are not UTF-8 are replaced, never refused.
    [[nodiscard]] static std::optional<ApplicationEntry> read(const QString& id,
                                                              const QByteArray& content);
};

} // namespace vantle
