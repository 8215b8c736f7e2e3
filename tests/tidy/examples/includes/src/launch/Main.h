// The top of the house.
#pragma once

#include "platform/posix/Files.h"
#include "surfaces/cards/Card.h"
