// Gives the ports that are QObjects their meta-objects, and proves that each header stands alone.
#include "platform/Autostart.h"
#include "platform/FrontmostApp.h"
#include "platform/HotKeyPort.h"
#include "platform/IdleSource.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "platform/ScreenPower.h"
#include "platform/TrayItem.h"
