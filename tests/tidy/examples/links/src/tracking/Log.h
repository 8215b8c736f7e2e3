// The log of what was done.
#pragma once

#include "base/Clock.h"
