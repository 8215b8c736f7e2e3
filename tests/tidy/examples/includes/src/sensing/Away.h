// The absence of the user.
#pragma once

#include "review/stats/Totals.h"
#include "tracking/Log.h"
