// The program on the real desktop, from main to exit.
#pragma once

namespace vantle {

/// Runs the program until it is told to end. Returns the exit status: 0, or 69 without a desktop.
/// Main thread.
[[nodiscard]] int HourfoldMain(int argc, char** argv);

} // namespace vantle
