// What the person can ask for.
#pragma once

#include "base/Clock.h"
#include "tracking/Log.h"
