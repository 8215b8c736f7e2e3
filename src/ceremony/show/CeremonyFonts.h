// The fonts of the ceremony's title and caption.
//
// The card after a session uses the title's font too. Requires a QGuiApplication; any thread after
// registration.
#pragma once

#include <QFont>
#include <QStringList>

namespace vantle::ceremonyfonts {

inline constexpr auto titleResourceName = "Jersey25-Regular";
inline constexpr auto titlePostScriptName = "Jersey25-Regular";
inline constexpr auto titleFamilyName = "Jersey 25";

/// Loads Jersey25-Regular.ttf from the first of the folders that has it. Without it the title uses
/// the system font. Once, at launch, main thread.
void registerBundledFonts(const QStringList& resourceFolders);

/// Returns the family of the bundled font, under either of its names; empty when it is not loaded.
[[nodiscard]] QString titleFamily();

/// The title's font, `size` in points of the screen (pixels at scale 1): bundled, or a heavy system
/// font.
[[nodiscard]] QFont titleFont(double size);

/// The caption's font: system, semibold.
[[nodiscard]] QFont captionFont(double size);

} // namespace vantle::ceremonyfonts
