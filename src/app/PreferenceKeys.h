// The preferences that the application model keeps itself.
#pragma once

#include <QLatin1String>

namespace vantle::preferencekeys {

inline constexpr QLatin1String onboardDone("onboard.done");          ///< bool: welcome finished
inline constexpr QLatin1String onboardStage("onboard.stage");        ///< only ever removed
inline constexpr QLatin1String hotkeyHintShown("hint.hotkey.shown"); ///< bool: hint given, or used
inline constexpr QLatin1String projectName("project.name");          ///< string: what is built
inline constexpr QLatin1String notchIntroFlashed("notch.intro.flashed"); ///< bool: intro played
inline constexpr QLatin1String rippleDisabled("ripple.disabled");        ///< bool: no ceremony
inline constexpr QLatin1String ceremonyBlackout("ceremony.blackout");    ///< bool, true when absent
inline constexpr QLatin1String autoModeEnabled("auto.enabled");          ///< bool, true when absent

} // namespace vantle::preferencekeys
