// Where the ceremony's two texts stand in their pictures. Pure functions, any thread.
//
// Lengths in points of the screen; heights are counted upwards from the lower edge.
#pragma once

#include <optional>

namespace vantle::ceremonytext {

/// What a line of text measures.
struct LineMetrics {
    double width = 0;
    double ascent = 0;
    double descent = 0;
};

/// A picture and the place of the text's baseline in it.
struct Layout {
    double width = 0;
    double height = 0;
    double textX = 0;
    double textY = 0; ///< above the lower edge

    friend bool operator==(const Layout&, const Layout&) = default;
};

/// The size of the title on a screen of that width, 34 to 74.
[[nodiscard]] double titleFontSize(double screenWidth);

/// The title's pill; none when there is nothing to show.
[[nodiscard]] std::optional<Layout> titleLayout(double fontSize, const LineMetrics& line);

[[nodiscard]] std::optional<Layout> captionLayout(const LineMetrics& line);

} // namespace vantle::ceremonytext
