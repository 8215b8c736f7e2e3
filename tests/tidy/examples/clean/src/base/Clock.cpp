#include "base/Clock.h"

auto now() { return std::chrono::system_clock::now(); }
