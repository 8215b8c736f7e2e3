// One card of the corner.
#pragma once

#include "surfaces/capsule/Capsule.h"
#include "surfaces/kit/DarkUI.h"
