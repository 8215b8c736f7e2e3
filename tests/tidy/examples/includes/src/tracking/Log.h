// The log of what was done.
#pragma once

#include "app/AppModel.h"
#include "base/Clock.h"
#include "platform/posix/Files.h"
