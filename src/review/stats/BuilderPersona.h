// How somebody works, as one of eleven named patterns.
//
// Three axes (when in the day, how long at a stretch, how concentrated on skills) are read from a
// window of sessions, and a fixed table makes a name of them. Whether a window holds enough to
// judge by is its owner's decision. Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "review/stats/SessionRefs.h"
#include "tracking/DurationStyle.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace vantle {

struct BuilderPersona {
    QString name;               ///< "Night Owl"
    QString line;               ///< a sentence under the name
    QString whenFact;           ///< "Late night"
    QString paceFact;           ///< "1 h 20 min average"
    std::uint32_t startHex = 0; ///< its gradient, 0xRRGGBB
    std::uint32_t endHex = 0;
    friend bool operator==(const BuilderPersona&, const BuilderPersona&) = default;
};

namespace builderpersona {

enum class DayPart { Morning, Daylight, Evening, Night, Anytime };
enum class Style { Marathon, Steady, Sprint };
enum class Focus { Focused, Multi, Balanced };

inline constexpr std::array allDayParts = {DayPart::Morning, DayPart::Daylight, DayPart::Evening,
                                           DayPart::Night, DayPart::Anytime};
inline constexpr std::array allStyles = {Style::Marathon, Style::Steady, Style::Sprint};
inline constexpr std::array allFocuses = {Focus::Focused, Focus::Multi, Focus::Balanced};

struct Axes {
    DayPart when = DayPart::Anytime;
    Style style = Style::Steady;
    Focus focus = Focus::Balanced;
    double averageSeconds = 0; ///< of a session; one of 0 seconds is taken for 1
};

/// The persona of these sessions; none of no sessions.
[[nodiscard]] std::optional<BuilderPersona> compute(SessionRefs sessions, const Calendar& calendar,
                                                    DurationStyle durationStyle);

/// What the sessions say on each axis; none of no sessions.
[[nodiscard]] std::optional<Axes> axes(SessionRefs sessions, const Calendar& calendar);

[[nodiscard]] QString name(DayPart when, Style style, Focus focus);

/// The sentence under a name; empty for an unknown one.
[[nodiscard]] QString line(const QString& name, DayPart when);

[[nodiscard]] QString whenFact(DayPart when);

struct Gradient {
    std::uint32_t start = 0; ///< 0xRRGGBB
    std::uint32_t end = 0;
};

/// The colours of a name; those of "All Rounder" for an unknown one.
[[nodiscard]] Gradient gradient(const QString& name);

/// The drawn symbol of a name, "moon.fill"; "hammer.fill" for an unknown one.
[[nodiscard]] QString symbol(const QString& name);

/// The picture of a name without its extension: "persona-night-owl".
/// The name as it is shown.
[[nodiscard]] QString shownName(const QString& name);
[[nodiscard]] QString artworkName(const QString& name);

} // namespace builderpersona
} // namespace vantle
