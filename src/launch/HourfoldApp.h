// The program: everything real put together, from the first line of main to the last.
#pragma once

namespace vantle {

/// Runs the program until it is told to end. Its exit status: 0, or 69 where there is no desktop.
[[nodiscard]] int HourfoldMain(int argc, char** argv);

} // namespace vantle
