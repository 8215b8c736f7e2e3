// The preferences of the program.
#pragma once

#include "platform/Preference.h"
#include "tracking/DurationStyle.h"

/// Key, default and limits of each; any thread. No other source names a key.
/// docs/formats/preferences.ini.md describes the same list; tools/tidy/preferences.py compares
/// both.
namespace vantle::settings {

// The user's choices.
inline constexpr Preference<DurationStyle> durationStyle{"format.duration", DurationStyle::Natural};
inline constexpr Preference<double> dailyGoalHours{
    "goal.dailyHours", 2.0, {.least = PreferenceLimits<double>::aboveZero, .most = 24.0}};
inline constexpr Preference<double> idleThresholdSeconds{
    "idle.thresholdSeconds", 180.0, {.least = 10.0}};
inline constexpr Preference<bool> callsCount{"idle.callsCount", false};
inline constexpr Preference<QString> projectName{"project.name"};
inline constexpr Preference<bool> autoMode{"auto.enabled", true};
inline constexpr Preference<bool> autoStart{"auto.autostart", false};
inline constexpr Preference<bool> focusLinked{"focus.linked", false};
inline constexpr Preference<QString> startShortcut{"focus.shortcut.start"};
inline constexpr Preference<QString> stopShortcut{"focus.shortcut.stop"};
inline constexpr Preference<bool> rippleDisabled{"ripple.disabled", false};
inline constexpr Preference<bool> ceremonyBlackout{"ceremony.blackout", true};
inline constexpr Preference<bool> skipInstallPrompt{"dev.skipInstallPrompt", false};

// State that the program keeps.
inline constexpr Preference<QString> lastUsedSkill{"skill.lastUsed"};
inline constexpr Preference<qint64> skillsMigrationVersion{"skills.taxonomyMigrationVersion", 0};
inline constexpr Preference<bool> hotKeyHintShown{"hint.hotkey.shown", false};
inline constexpr Preference<QString> hotKeyAllowed{"hotkey.allowed"};
inline constexpr Preference<bool> loginAutoRegistered{"login.autoRegistered", false};
inline constexpr Preference<bool> loginByPortal{"login.byPortal", false};
inline constexpr Preference<bool> notchIntroFlashed{"notch.intro.flashed", false};
inline constexpr Preference<bool> welcomeDone{"onboard.done", false};
inline constexpr Preference<QString> welcomeStage{"onboard.stage"}; ///< only ever removed
inline constexpr Preference<bool> trayAbsenceTold{"tray.absence.told", false};
inline constexpr WeekFlag reviewSeen{"wrapped.seen"};
inline constexpr Preference<QString> dashboardFrame{"Hourfold.dashboard.compact-overview.v2"};
inline constexpr Preference<QString> notesFrame{"Hourfold.notes.v1"};

} // namespace vantle::settings
