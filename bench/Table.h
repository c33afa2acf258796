// Runs figures with Google Benchmark, the sides of all figures in random order, and prints one table of their medians.
#pragma once

#include <vector>

#include "Figure.h"

/// `argc` and `argv` may contain the library's own options, such as --benchmark_filter=Sorting. Returns false if a side
/// failed.
bool measureAndPrint(const std::vector<Figure> &figures, int argc, char **argv);
