// How the pages of a review move: the figures behind everything that is animated there.
//
// Lengths are in px, times in seconds. Pure functions, any thread. The springs themselves are the
// kit's.
#pragma once

#include <cstdint>
#include <optional>

namespace vantle::wrappedmotion {

/// When the child `order` of a page begins to rise.
[[nodiscard]] double cascadeDelay(int order);
/// When the dot or disc `order` of a group pops up.
[[nodiscard]] double popDelay(int order, double baseDelay);
/// When the bar `order` of a group begins to grow.
[[nodiscard]] double growDelay(int order, double baseDelay);

inline constexpr double countUpSeconds = 0.8;

/// What the big figure shows `seconds` after it came; no hours, or less, stand there at once.
[[nodiscard]] double countUp(double hours, double seconds);

/// One particle of a burst, from its centre, y downwards.
struct BurstDot {
    double x = 0;
    double y = 0;
    double radius = 0;
    double alpha = 0;
};
inline constexpr int burstDots = 30;
/// `t` goes from 0 to 1 over the burst.
[[nodiscard]] BurstDot burstDot(int index, double t);

/// What one of the dots behind the pages is, for good.
struct AmbientDot {
    enum class Group { White = 0, Accent = 1, Rose = 2 };
    double baseX = 0; ///< part of the width
    double baseY = 0; ///< part of the height
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

/// Where it is at a moment, and how bright: 0 to 1.
struct AmbientPlace {
    double x = 0;
    double y = 0;
    double twinkle = 0;
};
[[nodiscard]] AmbientPlace place(const AmbientDot& dot, double width, double height, double t);

inline constexpr double shootingStarSeconds = 1.1;
/// Seconds into the crossing of the star that is in sight at `t`; none where there is none. One may
/// come every eight seconds.
[[nodiscard]] std::optional<double> shootingStar(double t);

} // namespace vantle::wrappedmotion
