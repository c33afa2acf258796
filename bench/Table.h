// Runs figures by Google Benchmark, both sides of each in random order among all, and prints one table of their
// medians.
#pragma once

#include <vector>

#include "Figure.h"

/// `argc` and `argv` may hold the library's own options, such as --benchmark_filter=Sorting. False where a side failed.
bool measureAndPrint(const std::vector<Figure> &figures, int argc, char **argv);
