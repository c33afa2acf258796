// Measures the process itself: the time, on a clock that all processes of the machine share, and its resident memory. A
// program that is measured in a process of its own reports both in one line, which omk_bench reads. Uses only standard
// C++, so that a floor without Qt can use it.
#pragma once

#include <cstdint>

/// Nanoseconds of the monotonic clock.
std::int64_t nowNanoseconds();
double millisecondsSince(std::int64_t nanoseconds);
/// Resident memory now, in kB; 0 if the system does not say.
long residentKilobytes();
/// Writes "milliseconds kilobytes" to standard output.
void reportMeasured(double milliseconds, long kilobytes);
