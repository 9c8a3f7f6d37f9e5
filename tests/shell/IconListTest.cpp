#include "shell/IconList.h"

#include "tests/support/Canvas.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

// An icon file: 16 by 16 pixels of one colour (blue, green, red), none transparent.
std::string IconFile(const std::string& colour = "\x20\x40\x60") {
    constexpr int kSide = 16;
    std::string file("\0\0\1\0\1\0\x10\x10\0\0\1\0\x18\0\x68\x03\0\0\x16\0\0\0", 22);
    file += std::string("\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\x18\0", 16) + std::string(24, '\0');
    for (int i = 0; i < kSide * kSide; ++i)
        file += colour;
    return file + std::string(kSide * 4, '\0'); // the mask
}

// What the list draws in the middle of a picture.
COLORREF ColourOf(const IconList& icons, std::int16_t position) {
    const Canvas canvas(0);
    icons.Draw(position, canvas.Dc(), 0, 0);
    return canvas.At(24, 24);
}

TEST(IconList, KeepsPicturesAndNamesInStep) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"R&D 1.x.ico", IconFile("\x10\x20\xF0")); // blue, green, red
    WriteFileBytes(folder.Path() + L"b.ico", IconFile().substr(0, 40));       // cut
    WriteFileBytes(folder.Path() + L"\x00C4rmel.ICO", IconFile("\xF0\x20\x10"));
    const IconList icons(folder.Path(), IconKeys(folder.Path()), 48);
    EXPECT_EQ(icons.Keys(), (std::vector<std::wstring>{L"\x00C4rmel", L"R&D 1.x"}));
    EXPECT_EQ(ColourOf(icons, 1), RGB(0x10, 0x20, 0xF0));
    EXPECT_EQ(ColourOf(icons, 2), RGB(0xF0, 0x20, 0x10));
}

} // namespace
