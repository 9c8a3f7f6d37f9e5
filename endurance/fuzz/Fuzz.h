#pragma once

#include "tests/support/Generator.h"

#include <cstdio>
#include <cstdlib>

// Ends the program, and so is reported with the input that led here, unless `holds`.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
#define REQUIRE(condition) Require((condition), #condition)

// Each fuzz program says here what has to hold for the input made by `from`.
void Examine(Generator& from);

// What the fuzzer calls; each program includes this once.
extern "C" inline __attribute__((used)) int LLVMFuzzerTestOneInput(const unsigned char* data,
                                                                   std::size_t size) {
    Generator from({data, size});
    Examine(from);
    return 0;
}
