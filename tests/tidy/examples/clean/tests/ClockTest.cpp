#include "support/Await.h"

void sleep() { screens.sleep(); }
