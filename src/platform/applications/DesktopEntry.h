// The text form of desktop entries, parsed by GLib.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <glib.h>
#include <memory>
#include <optional>

namespace vantle {

/// The group "Desktop Entry" of one file. Pure; any thread, one at a time per object.
class DesktopEntry {
public:
    /// An empty entry.
    DesktopEntry();

    /// Empty when the content is no key file, which desktops ignore too. Replaces bytes that are
    /// not UTF-8.
    [[nodiscard]] static std::optional<DesktopEntry> read(const QByteArray& content);

    /// Returns a key's unescaped value; empty when missing.
    [[nodiscard]] QString text(const char* key) const;

    /// Returns the value in the best of the environment's languages.
    [[nodiscard]] QString localText(const char* key) const;

    /// Whether a key has that value, ignoring case.
    [[nodiscard]] bool is(const char* key, const char* word) const;

    /// Returns the words of a command line, unquoted; empty when a quote is not closed.
    [[nodiscard]] QStringList command(const char* key) const;

    void setText(const char* key, const QString& text);

    /// Returns the file content for the entry.
    [[nodiscard]] QByteArray content() const;

    /// Quotes one argument by the rules of the Exec key and doubles percent signs. Not shell
    /// quoting: single quotes have no meaning.
    [[nodiscard]] static QString quotedArgument(const QString& argument);

private:
    struct Unref {
        void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    };
    std::unique_ptr<GKeyFile, Unref> m_file;
};

} // namespace vantle
