// The picker with messages as keyboard and wheel send them, through its own loop.

#include "shell/frmIcons.h"

#include "tests/shell/IconFile.h"
#include "tests/support/Canvas.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

// One sign a message; another one is a letter that is typed.
struct Sign {
    char sign;
    UINT message;
    WPARAM parameter;
};
constexpr Sign kSigns[] = {{'<', WM_KEYDOWN, VK_LEFT},
                           {'>', WM_KEYDOWN, VK_RIGHT},
                           {'[', WM_KEYDOWN, VK_HOME},
                           {']', WM_KEYDOWN, VK_END},
                           {'{', WM_KEYDOWN, VK_PRIOR},
                           {'}', WM_KEYDOWN, VK_NEXT},
                           {'-', WM_MOUSEWHEEL, static_cast<WPARAM>(-WHEEL_DELTA) << 16}};

void Post(HWND button, char sign) {
    for (const Sign& known : kSigns)
        if (known.sign == sign) return void(PostMessageW(button, known.message, known.parameter, 0));
    PostMessageW(button, WM_CHAR, static_cast<unsigned char>(sign), 0);
}

// Opens the picker, sends `signs` to a button that has no part in choosing, and accepts.
void Pick(frmIcons& form, const std::wstring& folder, const std::string& signs) {
    const std::jthread person([&] {
        while (!IsWindowVisible(form.Hwnd()))
            Sleep(1);
        for (const char sign : signs)
            Post(form.cmdCancel.Handle(), sign);
        PostMessageW(form.cmdOK.Handle(), BM_CLICK, 0, 0);
    });
    form.OpenForm(folder, nullptr);
}

// What is seen through the transparent icon in the first slot.
COLORREF GroundOf(frmIcons& form) {
    const Canvas canvas(RGB(255, 0, 255));
    DRAWITEMSTRUCT item{};
    item.hwndItem = form.imgIcon[0].Handle();
    item.hDC = canvas.Dc();
    GetClientRect(item.hwndItem, &item.rcItem);
    SendMessageW(form.Hwnd(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    return canvas.At(item.rcItem.right / 2, item.rcItem.bottom / 2);
}

TEST(frmIcons, KeysChooseAndTheWheelScrolls) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"I01", L"I02", L"I03", L"I04", L"I05", L"I06", L"I07", L"I08", L"I09",
                                L"I10", L"Mill", L"\x00DC&D"})
        WriteFileBytes(folder.Path() + name + L".ico", IconFile("", false));
    const struct {
        const char* signs;
        const wchar_t* picked;
        int scroll;
    } rows[] = {{">>", L"I03", 1},        {"]", L"\x00DC&D", 7}, {"]<", L"Mill", 7}, {"}", L"I07", 2},
                {"]{", L"I06", 6},        {"][", L"I01", 1},     {"m", L"Mill", 6},  {"i1", L"I10", 5},
                {"\xFC", L"\x00DC&D", 7}, {"--", L"I01", 7},     {"-->", L"I02", 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.picked));
        frmIcons form;
        Pick(form, folder, row.signs);
        EXPECT_EQ(form.Result(), row.picked + std::wstring(L".ico"));
        SCROLLINFO bar{};
        bar.cbSize = sizeof bar;
        bar.fMask = SIF_ALL;
        GetScrollInfo(form.hScrollIcons.Handle(), SB_CTL, &bar);
        EXPECT_EQ(bar.nPos, row.scroll);
        EXPECT_EQ(bar.nPage, 6u);
        EXPECT_EQ(bar.nMax, 12);
    }
}

TEST(frmIcons, LiesOnTheGroundOfTheScheme) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"a.ico", IconFile("", false));
    frmIcons form;
    Pick(form, folder, "");
    const INT element = COLOR_WINDOW;
    const COLORREF before = GetSysColor(element), other = RGB(0, 0, 128);
    EXPECT_EQ(GroundOf(form), before);
    SetSysColors(1, &element, &other);
    SendMessageW(form.Hwnd(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(GroundOf(form), other);
    SetSysColors(1, &element, &before);
}

} // namespace
