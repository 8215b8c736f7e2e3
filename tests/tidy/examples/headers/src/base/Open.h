// The time of day
#pragma once
