// The typefaces of the ceremony's two texts. Needs a QGuiApplication; any thread after registering.
#pragma once

#include <QFont>
#include <QStringList>

namespace vantle::ceremonyfonts {

inline constexpr auto titleResourceName = "Jersey25-Regular";
inline constexpr auto titlePostScriptName = "Jersey25-Regular";
inline constexpr auto titleFamilyName = "Jersey 25";

/// Makes Jersey25-Regular.ttf known to the process, from the first of the folders that holds it.
/// Without the file the title is set in the system's typeface. Once, at launch, main thread.
void registerBundledFonts(const QStringList& resourceFolders);

/// For the title, `size` in points of the screen (pixels at scale 1): the bundled typeface by
/// either of its names, else the system's in a heavy weight.
[[nodiscard]] QFont titleFont(double size);

/// For the caption: the system's typeface, semibold.
[[nodiscard]] QFont captionFont(double size);

} // namespace vantle::ceremonyfonts
