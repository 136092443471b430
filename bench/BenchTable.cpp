#include "bench/BenchTable.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

double CBenchTable::Milliseconds(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double CBenchTable::Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void CBenchTable::Add(const char *what, const char *unit, std::vector<double> values) {
    std::sort(values.begin(), values.end());
    std::printf("%-52s %12.3f %-10s (%.3f to %.3f)\n", what, values[values.size() / 2], unit, values.front(),
                values.back());
    std::fflush(stdout);
}

void CBenchTable::Time(const char *what, int runs, const std::function<void()> &work) {
    work();
    std::vector<double> values;
    for (int i = 0; i < runs; ++i)
        values.push_back(Milliseconds(work));
    Add(what, "ms", values);
}
