// The text scale beyond the screen's own scale factor.
#pragma once

#include <array>
#include <cmath>

namespace vantle {

/// Some desktops include the user's text size in the screen's dots per inch, and Qt then draws
/// everything larger from the start. Main thread.
class WishedTextScale {
public:
    /// `screenScale` is the screen's scale factor at the start of the program.
    explicit WishedTextScale(double screenScale) : m_screenScale(screenScale) {}

    /// Returns the factor for text: the part of the wish that the screen scale does not include.
    [[nodiscard]] double beyondScreen(double wished) {
        if (m_included == 1.0 && isIncluded(wished)) m_included = wished;
        return wished / m_included;
    }

private:
    /// High-density screens have a whole factor, multiplied by the wish.
    [[nodiscard]] bool isIncluded(double wished) const {
        constexpr std::array kWholes = {1.0, 2.0, 3.0};
        constexpr double kTolerance = 0.02; // since dots per inch are whole numbers
        for (const double whole : kWholes)
            if (std::abs(m_screenScale / whole - wished) < kTolerance) return true;
        return false;
    }

    const double m_screenScale;
    double m_included = 1.0; ///< the wish included in the screen scale
};

} // namespace vantle
