// The time of day.
#ifndef GUARDED_H
#define GUARDED_H
#endif
