// Keys of the X server.
#pragma once

#include "platform/posix/Files.h"
