// The files of this machine.
#pragma once

#include "platform/Port.h"
