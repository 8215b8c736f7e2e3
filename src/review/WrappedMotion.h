// The timing of a review page's animations.
//
// Lengths in px, times in seconds. Pure functions, any thread. The kit has the springs.
#pragma once

#include <cstdint>
#include <optional>

namespace vantle::wrappedmotion {

/// When child `order` of a page starts to rise.
[[nodiscard]] double cascadeDelay(int order);
/// When dot or disc `order` of a group pops up.
[[nodiscard]] double popDelay(int order, double baseDelay);
/// When bar `order` of a group starts to grow.
[[nodiscard]] double growDelay(int order, double baseDelay);

inline constexpr double countUpSeconds = 0.8;

/// The value of the large figure `seconds` after it appeared. Constant for 0 hours or less.
[[nodiscard]] double countUp(double hours, double seconds);

/// One particle of a burst, relative to its centre, y downwards.
struct BurstDot {
    double x = 0;
    double y = 0;
    double radius = 0;
    double alpha = 0;
};
inline constexpr int burstDots = 30;
/// `t` runs from 0 to 1 during the burst.
[[nodiscard]] BurstDot burstDot(int index, double t);

/// The constants of one background dot.
struct AmbientDot {
    enum class Group { White = 0, Accent = 1, Rose = 2 };
    double baseX = 0; ///< relative to the width
    double baseY = 0; ///< relative to the height
    double ampX = 0;
    double ampY = 0;
    double speed = 0;
    double phase = 0;
    double radius = 0;
    Group group = Group::White;
};
inline constexpr int ambientDots = 46;
inline constexpr double ambientFramesPerSecond = 30;
inline constexpr std::uint32_t ambientRose = 0xFF6482;
[[nodiscard]] AmbientDot ambientDot(int index);

/// Position and brightness (0 to 1) at a moment.
struct AmbientPlace {
    double x = 0;
    double y = 0;
    double twinkle = 0;
};
[[nodiscard]] AmbientPlace place(const AmbientDot& dot, double width, double height, double t);

inline constexpr double shootingStarSeconds = 1.1;
/// Returns the seconds since the star visible at `t` appeared; empty when there is none. One can
/// appear every eight seconds.
[[nodiscard]] std::optional<double> shootingStar(double t);

} // namespace vantle::wrappedmotion
