// What of the texts of a scene can't be read.
#pragma once

#include <QQuickWindow>
#include <QRegularExpression>
#include <QStringList>

namespace vantle {

/// What the texts of a scene hold that is no text of the program.
struct SampleData {
    QRegularExpression own; ///< names, notes and the like, which no translator sees
    QStringList longNames;  ///< of these, what may be cut with the text around it
};

/// The texts that are shown or read out, each once. Main thread, as all of these; the window is
/// shown.
[[nodiscard]] QStringList textsOf(QQuickWindow& window);

/// Those with words that the pseudo-locale has not made.
[[nodiscard]] QStringList untranslatedTexts(QQuickWindow& window, const SampleData& data = {});

/// One line a fault:
///
/// - "cut: …": a text that is shown in part. A name alone may be.
/// - "leaving: …": one that stands out of its control, or at the edge of its card.
/// - "overlapping: … / …": two that stand in each other, or one in a bar or an icon.
[[nodiscard]] QStringList crampedTexts(const QQuickWindow& window, const SampleData& data = {});

} // namespace vantle
