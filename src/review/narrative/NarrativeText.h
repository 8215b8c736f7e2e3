// The prompts for a narrative, and the check of its answer.
//
// Pure functions, any thread.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vantle::narrativetext {

/// The instructions of the conversation.
[[nodiscard]] const QString& instructions();

/// The prompt for these notes; the model gets the first 40, one per line.
[[nodiscard]] QString question(const QStringList& notes);

/// The prompt after a too long answer.
[[nodiscard]] const QString& shorterPlease();

/// Returns the sentence in an answer, without preambles and lists. Empty unless it starts with
/// "You" and has 20 to 260 characters.
[[nodiscard]] std::optional<QString> tidy(const QString& answer);

/// Returns the number of pieces between white space.
[[nodiscard]] qsizetype wordCount(const QString& text);

} // namespace vantle::narrativetext
