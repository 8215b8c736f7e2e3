// The user's work pattern, as one of eleven named personas.
//
// A fixed table maps three axes of a window of sessions (time of day, length, concentration on
// skills) to a name. The caller decides whether a window is large enough. Plain values and pure
// functions, any thread.
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
    std::uint32_t startHex = 0; ///< of its gradient, 0xRRGGBB
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
    double averageSeconds = 0; ///< of a session; 0 seconds count as 1
};

/// Returns the persona; empty without sessions.
[[nodiscard]] std::optional<BuilderPersona> compute(SessionRefs sessions, const Calendar& calendar,
                                                    DurationStyle durationStyle);

/// Returns the value on each axis; empty without sessions.
[[nodiscard]] std::optional<Axes> axes(SessionRefs sessions, const Calendar& calendar);

[[nodiscard]] QString name(DayPart when, Style style, Focus focus);

/// Returns the sentence under a name; empty for an unknown one.
[[nodiscard]] QString line(const QString& name, DayPart when);

[[nodiscard]] QString whenFact(DayPart when);

struct Gradient {
    std::uint32_t start = 0; ///< 0xRRGGBB
    std::uint32_t end = 0;
};

/// Returns the colours of a name; those of "All Rounder" for an unknown one.
[[nodiscard]] Gradient gradient(const QString& name);

/// Returns the symbol of a name, such as "moon.fill"; "hammer.fill" for an unknown one.
[[nodiscard]] QString symbol(const QString& name);

/// Returns the picture's base name, "persona-night-owl"; and the translated name.
[[nodiscard]] QString shownName(const QString& name);
[[nodiscard]] QString artworkName(const QString& name);

} // namespace builderpersona
} // namespace vantle
