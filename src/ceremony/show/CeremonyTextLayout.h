// The layout of the ceremony's texts in their images.
//
// Lengths in points of the screen; heights from the lower edge upwards. Pure functions, any thread.
#pragma once

#include <optional>

namespace vantle::ceremonytext {

/// The measures of a line of text.
struct LineMetrics {
    double width = 0;
    double ascent = 0;
    double descent = 0;
};

/// An image size and the baseline within it.
struct Layout {
    double width = 0;
    double height = 0;
    double textX = 0;
    double textY = 0; ///< above the lower edge

    friend bool operator==(const Layout&, const Layout&) = default;
};

/// Returns the title's font size for a screen of that width, 34 to 74.
[[nodiscard]] double titleFontSize(double screenWidth);

/// Returns the title pill's layout; empty without a title.
[[nodiscard]] std::optional<Layout> titleLayout(double fontSize, const LineMetrics& line);

[[nodiscard]] std::optional<Layout> captionLayout(const LineMetrics& line);

} // namespace vantle::ceremonytext
