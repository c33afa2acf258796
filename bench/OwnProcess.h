// What a process knows of itself: the time, as all processes of the machine share it, and its resident memory. A
// program that is measured in a process of its own reports both in one line, which omk_bench reads. Standard C++ only,
// so that a floor without Qt can use it.
#pragma once

#include <cstdint>

/// Nanoseconds of the monotonic clock.
std::int64_t nowNanoseconds();
double millisecondsSince(std::int64_t nanoseconds);
/// Resident memory now, in kB; 0 where the system does not tell.
long residentKilobytes();
/// Writes "milliseconds kilobytes" to standard output.
void reportMeasured(double milliseconds, long kilobytes);
