#pragma once

#include <string>

// An icon file: 16 by 16 pixels of one color (blue, green, red), all of them opaque or, in black,
// transparent.
inline std::string IconFile(const std::string& color = "\x20\x40\x60", bool opaque = true) {
    constexpr int kSide = 16;
    std::string file("\0\0\1\0\1\0\x10\x10\0\0\1\0\x18\0\x68\x03\0\0\x16\0\0\0", 22);
    file += std::string("\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\x18\0", 16) + std::string(24, '\0');
    for (int i = 0; i < kSide * kSide; ++i)
        file += opaque ? color : std::string(3, '\0');
    return file + std::string(kSide * 4, opaque ? '\0' : '\xFF'); // the mask
}
