// The picker with messages as keyboard, wheel and scroll bar send them, through its own loop.

#include "shell/frmIcons.h"

#include "tests/support/Canvas.h"
#include "tests/support/IconFile.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

// One sign a message; another one is a letter that is typed.
struct Sign {
    char sign;
    bool toForm; // what has the focus gets the others
    UINT message;
    WPARAM parameter;
};
constexpr WPARAM kDown = static_cast<WPARAM>(-WHEEL_DELTA) << 16, kRight = WHEEL_DELTA << 16;
// clang-format off
constexpr Sign kSigns[] = {
    {'<', false, WM_KEYDOWN, VK_LEFT},      {'[', false, WM_KEYDOWN, VK_HOME},     {'{', false, WM_KEYDOWN, VK_PRIOR},
    {'>', false, WM_KEYDOWN, VK_RIGHT},     {']', false, WM_KEYDOWN, VK_END},      {'}', false, WM_KEYDOWN, VK_NEXT},
    {'(', true, WM_HSCROLL, SB_LINELEFT},   {'^', true, WM_HSCROLL, SB_LEFT},      {',', true, WM_HSCROLL, SB_PAGELEFT},
    {')', true, WM_HSCROLL, SB_LINERIGHT},  {'$', true, WM_HSCROLL, SB_RIGHT},     {';', true, WM_HSCROLL, SB_PAGERIGHT},
    {'-', false, WM_MOUSEWHEEL, kDown},     {'+', true, WM_MOUSEHWHEEL, kRight},
};
// clang-format on

void Post(HWND button, char letter) {
    Sign sign{letter, false, WM_CHAR, static_cast<unsigned char>(letter)};
    for (const Sign& known : kSigns)
        if (known.sign == letter) sign = known;
    PostMessageW(sign.toForm ? GetParent(button) : button, sign.message, sign.parameter, 0);
}

// Opens the picker, sends `signs` to a button that has no part in choosing, and accepts.
void Pick(frmIcons& form, const std::wstring& folder, const std::string& signs, HWND owner = nullptr) {
    const std::jthread person([&] {
        while (!IsWindowVisible(form.Hwnd()))
            Sleep(1);
        EXPECT_EQ(GetWindow(form.Hwnd(), GW_OWNER), owner) << "what keeps it in front";
        for (const char sign : signs)
            Post(form.cmdCancel.Handle(), sign);
        PostMessageW(form.cmdOK.Handle(), BM_CLICK, 0, 0);
    });
    form.OpenForm(folder, owner);
}

struct Look {
    COLORREF middle, edge;
};

// What is seen through the transparent icon of a slot, and around it.
Look LookOf(frmIcons& form, std::size_t slot) {
    const Canvas canvas(RGB(255, 0, 255));
    DRAWITEMSTRUCT item{};
    item.hwndItem = form.imgIcon[slot].Handle();
    item.hDC = canvas.Dc();
    GetClientRect(item.hwndItem, &item.rcItem);
    SendMessageW(form.Hwnd(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    return {canvas.At(item.rcItem.right / 2, item.rcItem.bottom / 2), canvas.At(0, 0)};
}

TEST(frmIcons, KeysChooseAndTheWheelScrolls) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"I01", L"I02", L"I03", L"I04", L"I05", L"I06", L"I07", L"I08", L"I09",
                                L"I10", L"I11", L"I12", L"Mill", L"\x00DC&D"})
        WriteFileBytes(folder.Path() + name + L".ico", IconFile("", false));
    const struct {
        const char* signs;
        const wchar_t* picked;
        int scroll;
    } rows[] = {{">>", L"I03", 1},        {"]", L"\x00DC&D", 9}, {"]<", L"Mill", 9}, {"}", L"I07", 2},
                {"]{", L"I08", 8},        {"][", L"I01", 1},     {"m", L"Mill", 8},  {"i1", L"I10", 5},
                {"\xFC", L"\x00DC&D", 9}, {"--", L"I01", 7},     {"-->", L"I02", 1}, {"++", L"I01", 7},
                {"))(", L"I01", 2},       {";", L"I01", 7},      {"$,", L"I01", 3},  {"$^", L"I01", 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.signs);
        frmIcons form;
        Pick(form, folder, row.signs);
        EXPECT_EQ(form.Result(), row.picked + std::wstring(L".ico"));
        SCROLLINFO bar{};
        bar.cbSize = sizeof bar;
        bar.fMask = SIF_ALL;
        GetScrollInfo(form.hScrollIcons.Handle(), SB_CTL, &bar);
        EXPECT_EQ(bar.nPos, row.scroll);
        EXPECT_EQ(bar.nPage, 6u);
        EXPECT_EQ(bar.nMax, 14);
        EXPECT_TRUE(row.scroll != 9 || form.imgIcon[5].Text() == L"\x00DC&&D") << "no access key";
    }
}

bool tookInput;
LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) tookInput = IsWindowEnabled(window);
    return DefWindowProcW(window, message, wParam, lParam);
}

TEST(frmIcons, LiesOnTheGroundOfTheScheme) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f"})
        WriteFileBytes(folder.Path() + name + L".ico", IconFile("", false));
    frmIcons form;
    const win::Unique<HWND, DestroyWindow> owner(
        CreateWindowW(L"Static", L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    SetWindowLongPtrW(owner.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OwnerProcedure));
    PostMessageW(owner.Get(), WM_APP, tookInput = true, 0); // comes while the icons are read
    Pick(form, folder, "", owner.Get());
    EXPECT_TRUE(!tookInput && IsWindowEnabled(owner.Get()));
    EXPECT_FALSE(form.hScrollIcons.Visible()) << "all six are in sight";
    const INT element = COLOR_WINDOW;
    const COLORREF before = GetSysColor(element), other = RGB(0, 0, 128);
    EXPECT_EQ(LookOf(form, 0).middle, before);
    EXPECT_EQ(LookOf(form, 0).edge, GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(LookOf(form, 1).edge, before) << "not chosen";
    SetSysColors(1, &element, &other);
    SendMessageW(form.Hwnd(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(LookOf(form, 0).middle, other);
    SetSysColors(1, &element, &before);
}

} // namespace
