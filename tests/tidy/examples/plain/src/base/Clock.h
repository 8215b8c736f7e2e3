// The time of day.
#pragma once

// Nobody has the time, and "whoever" asks, asks anew.
const char* text = "Somebody is // at the door"; // dear to make
/* The heirs of
   the day besides. */
