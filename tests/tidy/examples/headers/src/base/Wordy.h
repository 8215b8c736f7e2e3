// The time of day, and the timers over it, for each of the folders above.
#pragma once
