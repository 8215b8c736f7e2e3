// The text form of desktop entry files, as far as one program needs it. Pure functions, any thread.
#pragma once

#include <QString>

#include <optional>

namespace vantle::desktopentry {

/// A text as the value of a key: backslashes, line breaks and leading blanks escaped.
[[nodiscard]] QString escaped(const QString& value);

/// One argument of an Exec key, quoted where the shell-like rules of that key ask for it, with
/// percent signs doubled. Not yet escaped as a value.
[[nodiscard]] QString quotedArgument(const QString& argument);

/// The value of a key without a locale in the group "Desktop Entry" of a file's content, as it
/// stands there. Empty when it has none; of several, the first.
[[nodiscard]] std::optional<QString> value(const QByteArray& content, const QString& key);

} // namespace vantle::desktopentry
