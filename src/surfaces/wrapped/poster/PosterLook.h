// The colours of the poster and its steps of the type scale, as the kit's tokens have them.
//
// The poster is drawn where there is no view, so it can't ask for the tokens themselves. Lengths in
// px of the poster, whatever the scale that it is drawn at.
#pragma once

#include "surfaces/kit/tokens/ColorMath.h"

#include <QColor>
#include <QFont>

namespace vantle::posterlook {

inline QColor white(double opacity) { return colormath::withAlpha(Qt::white, opacity); }

inline QColor ground() { return colormath::fromHex(0x0A0A0F); }
inline QColor t1() { return white(0.95); } ///< what is read
inline QColor t2() { return white(0.68); } ///< what goes with it
inline QColor t3() { return white(0.54); } ///< what may be passed over
inline QColor hairline() { return white(0.08); }
inline QColor trough() { return white(0.08); }       ///< of bars
inline QColor letter() { return white(0.55); }       ///< of a weekday
inline QColor futureLetter() { return white(0.30); } ///< of one to come

/// A step of the type scale.
struct Role {
    bool display = false; ///< titles and figures
    int size = 13;        ///< px
    QFont::Weight weight = QFont::Normal;
    double tracking = 0; ///< em
};

inline constexpr Role kWordmark{true, 17, QFont::DemiBold, -0.010};
inline constexpr Role kKicker{false, 11, QFont::DemiBold, 0.080};
inline constexpr Role kSmallKicker{false, 10, QFont::DemiBold, 0.080};
inline constexpr Role kName{true, 42, QFont::DemiBold, -0.026};
inline constexpr Role kHours{true, 84, QFont::DemiBold, -0.020};
inline constexpr Role kHoursUnit{true, 30, QFont::DemiBold, -0.020};
inline constexpr Role kClosing{false, 15, QFont::Normal, 0};
inline constexpr Role kLetter{false, 11, QFont::Normal, 0};
inline constexpr Role kSkill{false, 13, QFont::Medium, 0};
inline constexpr Role kSkillHours{false, 13, QFont::Medium, 0};
inline constexpr Role kFigure{true, 24, QFont::DemiBold, -0.014};
inline constexpr Role kFooter{false, 11, QFont::Normal, 0};

} // namespace vantle::posterlook
