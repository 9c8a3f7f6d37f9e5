#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

// Ends the program, and so is reported with the input that led here, unless `holds`.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
#define REQUIRE(condition) Require((condition), #condition)

// 0 to count - 1. When the input is used up every choice is the first one, so that all of it ends.
inline std::size_t Below(FuzzedDataProvider& from, std::size_t count) {
    return from.ConsumeIntegralInRange<std::size_t>(0, count - 1);
}

// Mostly of the characters in `alphabet`, now and then of any 16-bit code.
inline std::wstring Text(FuzzedDataProvider& from, std::size_t longest, std::wstring_view alphabet) {
    std::wstring text(Below(from, longest + 1), L' ');
    for (wchar_t& c : text)
        c = Below(from, 16) ? alphabet[Below(from, alphabet.size())] : from.ConsumeIntegral<std::uint16_t>();
    return text;
}

// Each fuzz program says here what has to hold for the input made by `from`.
void Examine(FuzzedDataProvider& from);

// What the fuzzer calls; each program includes this once.
extern "C" inline __attribute__((used)) int LLVMFuzzerTestOneInput(const unsigned char* data,
                                                                   std::size_t size) {
    FuzzedDataProvider from(data, size);
    Examine(from);
    return 0;
}
