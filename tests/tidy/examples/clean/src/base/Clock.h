// The time of day, and the timers over it.
#pragma once

class QTimer;
