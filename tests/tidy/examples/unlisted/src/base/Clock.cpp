#include "base/Clock.h"
