// What tells the time of day.
#pragma once
