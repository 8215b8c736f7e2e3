// Holds the precompiled headers; nothing else is in this library.
#include "support/headers.h"
