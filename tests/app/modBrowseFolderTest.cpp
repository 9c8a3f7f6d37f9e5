#include "app/modBrowseFolder.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <shlobj.h>

#include <thread>

namespace {

constexpr unsigned kFlags = 0x4041; // those of the one caller

BOOL CALLBACK FindTree(HWND window, LPARAM found) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    if (name == std::wstring(L"SysTreeView32")) *reinterpret_cast<HWND*>(found) = window;
    return *reinterpret_cast<HWND*>(found) == nullptr;
}

BOOL CALLBACK FindOwnDialog(HWND window, LPARAM found) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    HWND tree = nullptr;
    if (process == GetCurrentProcessId()) EnumChildWindows(window, FindTree, reinterpret_cast<LPARAM>(&tree));
    if (tree) *reinterpret_cast<HWND*>(found) = tree;
    return tree == nullptr;
}

// The folder that is selected in the dialog of this process; "" while there is none.
std::wstring SelectedFolder(HWND& tree) {
    tree = nullptr;
    EnumWindows(FindOwnDialog, reinterpret_cast<LPARAM>(&tree));
    const auto item = tree ? SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0) : 0;
    if (!item) return {};
    wchar_t name[MAX_PATH] = L"";
    TVITEMW request{};
    request.mask = TVIF_TEXT;
    request.hItem = reinterpret_cast<HTREEITEM>(item);
    request.pszText = name;
    request.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&request));
    return name;
}

// Presses `button` once the dialog has a folder selected whose name holds `selected`. The user chooses
// `folder`, if any, and tries again: the dialog still fills its tree while it is already there. Without
// success it is cancelled.
std::wstring Browse(const std::wstring& start, const wchar_t* folder, const wchar_t* selected, int button) {
    std::thread user([&] {
        HWND tree = nullptr;
        bool isSelected = false;
        for (const DWORD begin = GetTickCount(); !isSelected && GetTickCount() - begin < 10000; Sleep(20)) {
            isSelected = SelectedFolder(tree).find(selected) != std::wstring::npos && tree;
            const auto choice = reinterpret_cast<LPARAM>(folder);
            if (!isSelected && tree && folder)
                SendMessageW(GetAncestor(tree, GA_ROOT), BFFM_SETSELECTIONW, TRUE, choice);
        }
        EXPECT_TRUE(isSelected) << Utf8(selected);
        const HWND dialog = GetAncestor(tree, GA_ROOT);
        PostMessageW(GetDlgItem(dialog, isSelected ? button : IDCANCEL), BM_CLICK, 0, 0);
    });
    std::wstring result = BrowseForFolder(start, nullptr, L"Select folder", kFlags);
    user.join();
    return result;
}

LRESULT CALLBACK RecordSelection(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == BFFM_SETSELECTIONW && wParam)
        SetWindowTextW(window, reinterpret_cast<const wchar_t*>(lParam));
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

TEST(modBrowseFolder, FolderChosenOrNothing) {
    const ScratchFolder scratch;
    const std::wstring folder = scratch.Path() + L"Dr\u00fcck & Co";
    CreateDirectoryW(folder.c_str(), nullptr);
    EXPECT_EQ(Browse(L"", folder.c_str(), L"Dr\u00fcck & Co", IDOK), folder);
    EXPECT_EQ(Browse(L"", folder.c_str(), L"Dr\u00fcck & Co", IDCANCEL), L"");
    EXPECT_EQ(Browse(L"", nullptr, L"C:", IDOK), L"C:\\");
    EXPECT_EQ(Browse(L"C:\\windows", nullptr, L"windows", IDOK), L"C:\\windows");
    EXPECT_EQ(Browse(scratch.Path() + L"none", nullptr, L"", IDCANCEL), L""); // opens all the same
}

TEST(modBrowseFolder, CallbackSelectsTheStartOnce) {
    WNDCLASSW look{};
    look.lpfnWndProc = RecordSelection;
    look.lpszClassName = L"BrowseCallbackTest";
    RegisterClassW(&look);
    const HWND window =
        CreateWindowW(look.lpszClassName, L"", 0, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr, nullptr);
    const wchar_t start[] = L"D:\\Cnc";
    const auto data = reinterpret_cast<LPARAM>(start);
    wchar_t text[32] = L"";
    EXPECT_EQ(BrowseCallback(window, BFFM_SELCHANGED, 0, data), 0);
    GetWindowTextW(window, text, 32);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(BrowseCallback(window, BFFM_INITIALIZED, 0, data), 0);
    GetWindowTextW(window, text, 32);
    EXPECT_STREQ(text, L"D:\\Cnc");
    DestroyWindow(window);
}
