// The commands of the user.
#pragma once

#include "base/Clock.h"
#include "tracking/Log.h"
