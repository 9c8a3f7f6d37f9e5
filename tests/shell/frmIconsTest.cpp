#include "shell/frmIcons.h"

#include "app/Com.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/FormDriver.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <map>
#include <memory>

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

constexpr wchar_t kClass[] = L"VarnelIcons";

enum Ids { kFirstSlot = 101, kBar = 110, kName, kCount };

// One letter a step: 1 to 6 clicks a slot, D double-clicks the second, L R T are left, right and Tab, > is
// the scroll bar's right arrow, e Enter, s Esc, x the close box.
void Do(HWND form, char step) {
    constexpr LPARAM kInside = MAKELPARAM(9, 9);
    const HWND bar = GetDlgItem(form, kBar);
    RECT area{};
    GetClientRect(bar, &area);
    switch (step) {
        // clang-format off
    case 'L': return PostKey(form, VK_LEFT);
    case 'R': return PostKey(form, VK_RIGHT);
    case 'T': return PostKey(form, VK_TAB);
    case 'e': return PostKey(form, VK_RETURN);
    case 's': return PostKey(form, VK_ESCAPE);
    case 'x': PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0); return;
    case '>': return PostClick(bar, MAKELPARAM(area.right - 4, 4));
    case 'D': PostClick(GetDlgItem(form, kFirstSlot + 1), kInside);
              return PostClick(GetDlgItem(form, kFirstSlot + 1), kInside, WM_LBUTTONDBLCLK);
    default:  return PostClick(GetDlgItem(form, kFirstSlot + step - '1'), kInside);
        // clang-format on
    }
}

// The window at one moment: the labels, the captions of the slots and of the control with the focus, "|"
// between, and "bar" when there is a scroll bar.
std::wstring Look(HWND form) {
    std::wstring seen =
        CaptionOf(GetDlgItem(form, kCount)) + L"|" + CaptionOf(GetDlgItem(form, kName)) + L"|";
    for (int slot = 0; slot < kIconSlots; ++slot)
        seen += CaptionOf(GetDlgItem(form, kFirstSlot + slot)) + L" ";
    seen += L"|" + CaptionOf(FocusIn(form));
    return seen + (GetWindowLongW(GetDlgItem(form, kBar), GWL_STYLE) & WS_VISIBLE ? L"|bar" : L"");
}

struct Row {
    int icons;
    std::string_view steps; // the last one closes the window
    std::wstring_view seen; // before it does
    std::wstring_view result;
};

// clang-format off
const Row kRows[] = {
    // icons  steps        seen before the last step                                  result
    { 3, "e",              L"3 icons|VDNC32|i01 i02 VDNC32    |VDNC32",                L"VDNC32.ico"},
    { 3, "5Le",            L"3 icons|i02|i01 i02 VDNC32    |i02",                      L"i02.ico"   },
    { 3, "RRs",            L"3 icons|VDNC32|i01 i02 VDNC32    |VDNC32",                L""          },
    { 6, "1e",             L"6 icons|i01|i01 i02 i03 i04 i05 VDNC32 |i01",             L"i01.ico"   },
    { 6, "x",              L"6 icons|VDNC32|i01 i02 i03 i04 i05 VDNC32 |VDNC32",       L""          },
    { 6, "D",              L"6 icons|VDNC32|i01 i02 i03 i04 i05 VDNC32 |VDNC32",       L"i02.ico"   },
    { 7, "e",              L"7 icons|VDNC32|i02 i03 i04 i05 i06 VDNC32 |VDNC32|bar",   L"VDNC32.ico"},
    { 7, "LLLLLLe",        L"7 icons|i01|i01 i02 i03 i04 i05 i06 |i01|bar",            L"i01.ico"   },
    { 7, "LLLLLTTe",       L"7 icons|i02|i02 i03 i04 i05 i06 VDNC32 |Cancel|bar",      L""          },
    { 7, "LLLLLTLTTRe",    L"7 icons|i02|i01 i02 i03 i04 i05 i06 |i02|bar",            L"i02.ico"   },
    {40, "4e",             L"40 icons|i38|i35 i36 i37 i38 i39 VDNC32 |i38|bar",        L"i38.ico"   },
    {40, "1LLLLe",         L"40 icons|i31|i31 i32 i33 i34 i35 i36 |i31|bar",           L"i31.ico"   },
    {40, "1LLLL>>2e",      L"40 icons|i34|i33 i34 i35 i36 i37 i38 |i34|bar",           L"i34.ico"   },
};
// clang-format on

// i01, i02 … and last, by its name, the suite's own.
std::unique_ptr<ScratchFolder> FolderWith(int icons) {
    auto folder = std::make_unique<ScratchFolder>();
    for (int i = icons - 1; i >= 1; --i) // not in the order wanted
        WriteFileBytes(folder->Path() + (i < 10 ? L"i0" : L"i") + std::to_wstring(i) + L".ico", IconFile());
    WriteFileBytes(folder->Path() + L"VDNC32.ICO", IconFile());
    return folder;
}

TEST(frmIcons, IsDrivenByMouseAndKeys) {
    std::map<int, std::unique_ptr<ScratchFolder>> folders;
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.steps) + " with " + std::to_string(row.icons) + " icons");
        auto& folder = folders[row.icons];
        if (!folder) folder = FolderWith(row.icons);
        frmIcons form;
        std::wstring seen;
        EXPECT_TRUE(WhileOpen(
            kClass, [&] { form.OpenForm(folder->Path(), nullptr); },
            [&](HWND window) {
                for (const char step : row.steps.substr(0, row.steps.size() - 1))
                    Do(window, step);
                seen = Look(window);
                Do(window, row.steps.back());
            }));
        EXPECT_EQ(seen, row.seen);
        EXPECT_EQ(form.Result(), row.result);
    }
}

// Damaged files are no icons, and an icon file of another extension is none either.
TEST(frmIcons, IsNotShownWithoutIcons) {
    const ScratchFolder folder;
    frmIcons form;
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(WhileOpen(
            kClass, [&] { form.OpenForm(folder.Path(), nullptr); }, [](HWND) {}));
        EXPECT_EQ(form.Result(), L"");
        WriteFileBytes(folder.Path() + L"empty.ico", "");
        WriteFileBytes(folder.Path() + L"text.ico", "This is no picture at all, but it has some length.");
        WriteFileBytes(folder.Path() + L"cut.ico", IconFile().substr(0, 40));
        WriteFileBytes(folder.Path() + L"longer.icox", IconFile());
    }
}

// What a screen reader says of a control.
std::wstring SpokenName(HWND control) {
    UniqueInterface<IAccessible> object;
    AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(object.Out()));
    VARIANT self{};
    self.vt = VT_I4;
    BSTR name = nullptr;
    if (!object || object.Get()->get_accName(self, &name) != S_OK) return {};
    std::wstring spoken = name;
    SysFreeString(name);
    return spoken;
}

TEST(frmIcons, PassesOverDamagedFilesAndTakesAnyName) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"a.ico", "no picture");
    WriteFileBytes(folder.Path() + L"R&D 1.x.ico", IconFile());
    WriteFileBytes(folder.Path() + L"\x00C4rmel.ICO", IconFile());
    WriteFileBytes(folder.Path() + L"zz.ico", "");
    frmIcons form;
    std::wstring seen;
    WhileOpen(
        kClass, [&] { form.OpenForm(folder.Path(), nullptr); },
        [&](HWND window) {
            seen = Look(window);
            PostKey(window, VK_RIGHT);
            PostKey(window, VK_RETURN);
        });
    EXPECT_EQ(seen, L"2 icons|\x00C4rmel|\x00C4rmel R&&D 1.x     |\x00C4rmel");
    EXPECT_EQ(form.Result(), L"R&D 1.x.ico");
    EXPECT_EQ(SpokenName(form.imgIcon[0].Handle()), L"\x00C4rmel");
    EXPECT_EQ(SpokenName(form.imgIcon[1].Handle()), L"R&D 1.x");
}

// What the list draws in the middle of a picture.
COLORREF ColourOf(const IconList& icons, std::int16_t position) {
    const HDC screen = GetDC(nullptr);
    const win::Unique<HDC, DeleteDC> dc(CreateCompatibleDC(screen));
    const win::UniqueBitmap bitmap(CreateCompatibleBitmap(screen, 48, 48));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ before = SelectObject(dc.Get(), bitmap.Get());
    icons.Draw(position, dc.Get(), 0, 0);
    const COLORREF colour = GetPixel(dc.Get(), 24, 24);
    SelectObject(dc.Get(), before);
    return colour;
}

TEST(IconList, KeepsPicturesAndNamesInStep) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"a.ico", IconFile("\x10\x20\xF0")); // blue, green, red
    WriteFileBytes(folder.Path() + L"b.ico", "no picture");
    WriteFileBytes(folder.Path() + L"C.ico", IconFile("\xF0\x20\x10"));
    const IconList icons(folder.Path(), IconKeys(folder.Path()), 48);
    EXPECT_EQ(icons.Keys(), (std::vector<std::wstring>{L"a", L"C"}));
    EXPECT_EQ(ColourOf(icons, 1), RGB(0xF0, 0x20, 0x10));
    EXPECT_EQ(ColourOf(icons, 2), RGB(0x10, 0x20, 0xF0));
}

TEST(frmIcons, HoldsItsOwnerMeanwhileAndForgetsItsLastResult) {
    const auto folder = FolderWith(3);
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 300, 200, 500, 400, nullptr,
                                       nullptr, nullptr, nullptr);
    frmIcons form;
    bool heldOwner = false;
    RECT place{};
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
        WhileOpen(
            kClass, [&] { form.OpenForm(folder->Path(), owner); },
            [&](HWND window) {
                heldOwner = !IsWindowEnabled(owner) && GetWindow(window, GW_OWNER) == owner;
                GetWindowRect(window, &place);
                PostKey(window, key);
            });
        EXPECT_TRUE(heldOwner);
        EXPECT_TRUE(IsWindowEnabled(owner));
        EXPECT_EQ(form.Result(), key == VK_RETURN ? L"VDNC32.ico" : L"");
        EXPECT_NEAR(place.left + place.right, 2 * 550, 2);
        EXPECT_NEAR(place.top + place.bottom, 2 * 400, 2);
    }
    DestroyWindow(owner);
}

} // namespace
