// The faults of a scene's texts in the pseudo-locale.
#pragma once

#include <QQuickWindow>
#include <QStringList>

namespace vantle {

/// One line per fault: "untranslated: …" for a text without translation (names and data too), "cut:
/// …" for a partly visible one, "overlapping: … / …" for two. Main thread; the window must be
/// shown.
[[nodiscard]] QStringList textFaults(const QQuickWindow& window);

} // namespace vantle
