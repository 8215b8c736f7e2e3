// The time of day.
#include <chrono>

#pragma once
