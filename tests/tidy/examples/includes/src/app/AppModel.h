// What the person can ask for.
#pragma once

#include "app/launch/Main.h"
#include "nowhere/Else.h"
#include "platform/Port.h"
#include "platform/posix/Files.h"
