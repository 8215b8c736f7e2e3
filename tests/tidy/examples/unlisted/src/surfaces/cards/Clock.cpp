#include "base/Forgotten.h"
