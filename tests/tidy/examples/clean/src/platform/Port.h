// What the program needs of a desktop.
#pragma once

#include "base/Clock.h"
