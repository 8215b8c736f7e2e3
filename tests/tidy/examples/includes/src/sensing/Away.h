// Whether the person is away.
#pragma once

#include "review/stats/Totals.h"
#include "tracking/Log.h"
