// The benchmark programs' entry point.

#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
