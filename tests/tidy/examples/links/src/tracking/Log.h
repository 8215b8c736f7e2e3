// The log of sessions.
#pragma once

#include "base/Clock.h"
