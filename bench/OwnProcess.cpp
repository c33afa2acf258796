#include "OwnProcess.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

std::int64_t nowNanoseconds()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

double millisecondsSince(std::int64_t nanoseconds) { return double(nowNanoseconds() - nanoseconds) / 1e6; }

long residentKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes)
            return kilobytes;
    }
    return 0;
}

void reportMeasured(double milliseconds, long kilobytes)
{
    std::printf("%.3f %ld\n", milliseconds, kilobytes);
    std::fflush(stdout);
}
