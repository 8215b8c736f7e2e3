// What the welcome says, step by step.
//
// Pure functions, any thread.
#pragma once

#include <QString>

namespace vantle::welcometext {

/// The steps, in their order. There is no way back.
enum Step { Pick, Modes, Press, Stop, Success, Notch, Dashboard, Brick, Wrapped, Done };
inline constexpr int stepCount = Done + 1;

[[nodiscard]] QString title(int step);

/// `projectName` may be empty. A step of the session says whether that session is practice.
[[nodiscard]] QString body(int step, const QString& projectName, bool isPractice);

/// What says that a picture shows made-up figures; empty for steps without one.
[[nodiscard]] QString sampleLine(int step);

/// What the picture of a step shows, for assistive tools; empty where it speaks for itself.
[[nodiscard]] QString sampleLabel(int step);

/// The main button.
[[nodiscard]] QString primary(int step);

/// The quiet button beside it; empty for none.
[[nodiscard]] QString quiet(int step);

/// What stands beside the main button; empty for nothing.
[[nodiscard]] QString aside(int step);

} // namespace vantle::welcometext
