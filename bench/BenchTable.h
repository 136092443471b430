// CBenchTable: one line of the result, a median with minimum and maximum.
#pragma once

#include <functional>
#include <vector>

class CBenchTable {
public:
    void Add(const char *what, const char *unit, std::vector<double> values);
    // Runs the work `runs` times after one that is not counted, in milliseconds.
    void Time(const char *what, int runs, const std::function<void()> &work);
    static double Milliseconds(const std::function<void()> &work);
    static double Median(std::vector<double> values);
};
