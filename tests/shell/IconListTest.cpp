#include "shell/IconList.h"

#include "tests/support/Canvas.h"
#include "tests/support/IconFile.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

// What the list draws in the middle of a picture.
COLORREF ColorOf(const IconList& icons, std::int16_t position) {
    const Canvas canvas(0);
    icons.Draw(position, canvas.Dc(), 0, 0);
    return canvas.At(24, 24);
}

TEST(IconList, KeepsPicturesAndNamesInStep) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"R&D 1.x.ico", IconFile("\x10\x20\xF0")); // blue, green, red
    WriteFileBytes(folder.Path() + L"b.ico", IconFile().substr(0, 40));       // cut
    WriteFileBytes(folder.Path() + L"\x00C4rmel.ICO", IconFile("\xF0\x20\x10"));
    WriteFileBytes(folder.Path() + std::wstring(60, L'x') + L".ico", IconFile());
    // No configuration can name these.
    for (const std::wstring& name :
         {std::wstring(61, L'x'), std::wstring(L"\x0416"), std::wstring(L"\x0100")})
        WriteFileBytes(folder.Path() + name + L".ico", IconFile());
    const IconList icons(folder.Path(), IconKeys(folder.Path()), 48);
    EXPECT_EQ(icons.Keys(), (std::vector<std::wstring>{L"\x00C4rmel", L"R&D 1.x", std::wstring(60, L'x')}));
    EXPECT_EQ(ColorOf(icons, 1), RGB(0x10, 0x20, 0xF0));
    EXPECT_EQ(ColorOf(icons, 2), RGB(0xF0, 0x20, 0x10));
}

} // namespace
