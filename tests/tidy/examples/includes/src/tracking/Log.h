// The log of sessions.
#pragma once

#include "app/AppModel.h"
#include "base/Clock.h"
#include "platform/posix/Files.h"
