// The text form of desktop entry files, by GLib's reader and writer of key files.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <glib.h>
#include <memory>
#include <optional>

namespace vantle {

/// The group "Desktop Entry" of one file. Reading and writing are pure; any thread, an object on
/// one at a time.
class DesktopEntry {
public:
    /// An entry without keys.
    DesktopEntry();

    /// Empty for content that is no key file: desktops pass over such a file, too. Bytes that are
    /// not UTF-8 are replaced, never refused.
    [[nodiscard]] static std::optional<DesktopEntry> read(const QByteArray& content);

    /// The value of a key, unescaped; empty when it has none.
    [[nodiscard]] QString text(const char* key) const;

    /// The same in the best of the languages that the environment asks for, where the entry has it.
    [[nodiscard]] QString localText(const char* key) const;

    /// Whether the value of a key is that word, in capitals or not.
    [[nodiscard]] bool is(const char* key, const char* word) const;

    /// The words of a command line in a key, quotes and backslashes taken away; empty when a quote
    /// is not closed.
    [[nodiscard]] QStringList command(const char* key) const;

    void setText(const char* key, const QString& text);

    /// The content of a file that holds the entry.
    [[nodiscard]] QByteArray content() const;

    /// One argument of a command, quoted where the rules of the key Exec ask for it, with percent
    /// signs doubled. Not a shell's quoting: single quotes mean nothing there.
    [[nodiscard]] static QString quotedArgument(const QString& argument);

private:
    struct Unref {
        void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    };
    std::unique_ptr<GKeyFile, Unref> m_file;
};

} // namespace vantle
