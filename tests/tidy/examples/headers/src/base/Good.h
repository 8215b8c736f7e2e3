// The time of day.
//
// And more.

#pragma once
