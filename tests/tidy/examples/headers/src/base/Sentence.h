// The clock is read here alone.
#pragma once
