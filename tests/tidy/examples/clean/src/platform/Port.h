// The operations that the program needs from a desktop.
#pragma once

#include "base/Clock.h"
