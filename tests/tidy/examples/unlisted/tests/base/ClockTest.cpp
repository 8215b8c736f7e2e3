#include "support/Used.h"
