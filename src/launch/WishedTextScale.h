// How much larger text is drawn than the scale factor of the screen makes it.
#pragma once

#include <array>
#include <cmath>

namespace vantle {

/// Some desktops have the user's wish for larger text in the dots per inch of the screen as well,
/// and then everything is drawn larger from the start of the program on. Main thread.
class WishedTextScale {
public:
    /// `screenScale` is the scale factor of the screen at the start of the program.
    explicit WishedTextScale(double screenScale) : m_screenScale(screenScale) {}

    /// The factor on text for a wish: what the screen has not got already.
    [[nodiscard]] double beyondScreen(double wished) {
        if (m_included == 1.0 && isIncluded(wished)) m_included = wished;
        return wished / m_included;
    }

private:
    /// Screens of high density are drawn by a whole number, by which the wish is multiplied.
    [[nodiscard]] bool isIncluded(double wished) const {
        constexpr std::array kWholes = {1.0, 2.0, 3.0};
        constexpr double kTolerance = 0.02; // dots per inch are whole numbers
        for (const double whole : kWholes)
            if (std::abs(m_screenScale / whole - wished) < kTolerance) return true;
        return false;
    }

    const double m_screenScale;
    double m_included = 1.0; ///< the wish that the screen is drawn by
};

} // namespace vantle
