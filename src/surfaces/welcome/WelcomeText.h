// The texts of the welcome, step by step.
//
// Pure functions, any thread.
#pragma once

#include <QString>

namespace vantle::welcometext {

/// The steps in order. There is no way back.
enum Step { Pick, Modes, Press, Stop, Success, Notch, Dashboard, Brick, Wrapped, Done };
inline constexpr int stepCount = Done + 1;

[[nodiscard]] QString title(int step);

/// `projectName` may be empty. Steps with a session mention whether it is practice.
[[nodiscard]] QString body(int step, const QString& projectName, bool isPractice);

/// The note that a picture shows sample data; empty for steps without one.
[[nodiscard]] QString sampleLine(int step);

/// The picture for screen readers; empty where its texts are read.
[[nodiscard]] QString sampleLabel(int step);

/// The main button.
[[nodiscard]] QString primary(int step);

/// The secondary button; empty for none.
[[nodiscard]] QString quiet(int step);

/// The text beside the main button; empty for none.
[[nodiscard]] QString aside(int step);

} // namespace vantle::welcometext
