// The time of day.
#pragma once

#include "tracking/Log.h"
