#pragma once

// The one table that is printed: a figure of ours beside its peer's, their ratio, what is wanted of it.

#include <string>

void PrintHead();

// `wanted` is the greatest ratio (ours : theirs) that is wanted; 0: shown without a wish.
void PrintRatio(const std::string& figure, const std::string& peer, double ours, double theirs,
                const char* unit, double wanted);

// A figure that stands alone; `limit` is the greatest value wanted.
void PrintValue(const std::string& figure, double value, const char* unit, double limit);
