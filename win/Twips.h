#pragma once

// Lengths of the layout. A twip is 1/1440 inch: 15 twips are one pixel at 96 DPI.

#include <compare>

namespace win {

struct Twips {
    int value = 0;

    constexpr auto operator<=>(const Twips&) const = default;
    constexpr Twips operator+(Twips other) const { return {value + other.value}; }
    constexpr Twips operator-(Twips other) const { return {value - other.value}; }
    constexpr Twips operator*(int factor) const { return {value * factor}; }
    constexpr Twips operator/(int divisor) const { return {value / divisor}; }
    constexpr Twips& operator+=(Twips other) { return *this = *this + other; }
};

inline namespace literals {
constexpr Twips operator""_tw(unsigned long long value) { return {static_cast<int>(value)}; }
} // namespace literals

inline constexpr int kTwipsPerInch = 1440;

// Rounds to the nearest pixel, halves away from zero; `dpi` is pixels per inch.
constexpr int ToPixels(Twips length, int dpi) {
    const int scaled = length.value * dpi;
    return (scaled + (scaled < 0 ? -kTwipsPerInch / 2 : kTwipsPerInch / 2)) / kTwipsPerInch;
}

// Rounds up, so that a text measured in pixels still fits the twips returned.
constexpr Twips ToTwips(int pixels, int dpi) { return {(pixels * kTwipsPerInch + dpi - 1) / dpi}; }

} // namespace win
