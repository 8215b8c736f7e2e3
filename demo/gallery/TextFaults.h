// What of the texts of a scene can't be read in the pseudo-locale.
#pragma once

#include <QQuickWindow>
#include <QStringList>

namespace vantle {

/// One line a fault: "untranslated: …" for a text with words that no translator made, "cut: …" for
/// one that is shown in part, "overlapping: … / …" for two that stand in each other. Names and
/// other data are untranslated, too. Main thread; the window is shown.
[[nodiscard]] QStringList textFaults(const QQuickWindow& window);

} // namespace vantle
