#pragma once

// Times in milliseconds, and what is made of many of them.

#include <vector>

double Now(); // from a fixed moment, by the system's finest clock

template <class Act> double TimeOf(Act act) {
    const double begin = Now();
    act();
    return Now() - begin;
}

double Median(std::vector<double> values);
double Percentile95(std::vector<double> values);
