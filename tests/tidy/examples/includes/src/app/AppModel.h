// The commands of the user.
#pragma once

#include "launch/Main.h"
#include "nowhere/Else.h"
#include "platform/Port.h"
#include "platform/posix/Files.h"
