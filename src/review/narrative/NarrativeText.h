// What a language model is told about a person's notes, and what of its answer is fit to be shown.
//
// Pure functions, any thread.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vantle::narrativetext {

/// The instructions of the conversation.
[[nodiscard]] const QString& instructions();

/// The question about these notes, of which the model gets the first 40: a line for each.
[[nodiscard]] QString question(const QStringList& notes);

/// What is asked when the answer was too long.
[[nodiscard]] const QString& shorterPlease();

/// The sentence that an answer holds, without preambles and lists. Nothing unless it starts with
/// "You" and has 20 to 260 characters.
[[nodiscard]] std::optional<QString> tidy(const QString& answer);

/// The pieces between white space.
[[nodiscard]] qsizetype wordCount(const QString& text);

} // namespace vantle::narrativetext
