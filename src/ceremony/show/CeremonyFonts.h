// The typefaces of the ceremony's two texts; the card after a session shares that of the title.
// Needs a QGuiApplication; any thread after registering.
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

/// The family of the bundled typeface, which goes by either of its names; empty without it.
[[nodiscard]] QString titleFamily();

/// For the title, `size` in points of the screen (pixels at scale 1): the bundled typeface, else
/// the system's in a heavy weight.
[[nodiscard]] QFont titleFont(double size);

/// For the caption: the system's typeface, semibold.
[[nodiscard]] QFont captionFont(double size);

} // namespace vantle::ceremonyfonts
