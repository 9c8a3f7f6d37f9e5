// What the system is asked for, and how; nothing of it is done.

#include "app/Launch.h"

#include "app/Files.h"
#include "app/modBrowseFolder.h"
#include "tests/support/Imports.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <shellapi.h>
#include <shlobj.h>

#include <thread>

namespace {

DWORD startError;   // of CreateProcess
bool userRefuses;   // what the shell asks
std::wstring asked; // "no COM" when the shell was asked before that was begun

// Names of what whoever starts a program has to close.
constexpr const wchar_t *kProcess = L"Varnel test process", *kThread = L"Varnel test thread";

template <class... Part> void Note(bool ofShell, Part... parts) {
    const bool isComBegun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) == S_FALSE;
    CoUninitialize();
    asked = ofShell && !isComBegun ? L"no COM" : (std::wstring() + ... + parts);
}

// NOLINTNEXTLINE(readability-function-size): as the system has it
BOOL WINAPI Start(LPCWSTR, LPWSTR line, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD, LPVOID,
                  LPCWSTR, LPSTARTUPINFOW look, LPPROCESS_INFORMATION started) {
    SetLastError(startError);
    if (startError) return line[0] = L'x', FALSE; // as the system may
    Note(false, line, L" as ",
         look->dwFlags == STARTF_USESHOWWINDOW ? std::to_wstring(look->wShowWindow) : L"?");
    *started = {CreateEventW(nullptr, 1, 0, kProcess), CreateEventW(nullptr, 1, 0, kThread), 7, 8};
    return TRUE;
}
BOOL WINAPI Allow(DWORD process) { return asked += L", front " + std::to_wstring(process), TRUE; }

BOOL WINAPI AskShell(LPSHELLEXECUTEINFOW start) {
    Note(true, start->lpVerb, L" <", start->lpFile, L"> <", start->lpParameters ? start->lpParameters : L"-",
         start->lpDirectory ? L"> elsewhere" : L">", L" as ", std::to_wstring(start->nShow),
         start->fMask == (SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI) ? L"" : L" other flags");
    return FALSE;
}

int WINAPI Operate(LPSHFILEOPSTRUCTW what) {
    const std::wstring second = what->pFrom + std::wcslen(what->pFrom) + 1;
    Note(true, what->wFunc == FO_COPY ? L"copy " : L"delete ", what->pFrom,
         second.empty() ? L"" : L" " + second, L" to ", what->pTo ? what->pTo : L"-", L" with ",
         std::to_wstring(what->fFlags));
    what->fAnyOperationsAborted = userRefuses;
    return 0;
}

LPITEMIDLIST WINAPI Browse(LPBROWSEINFOW what) {
    Note(true, what->lpszTitle, L" with ", std::to_wstring(what->ulFlags),
         what->hwndOwner == GetDesktopWindow() ? L"" : L" without owner");
    what->lpfn(nullptr, BFFM_INITIALIZED, 0, what->lParam);
    return nullptr;
}
LRESULT WINAPI Send(HWND, UINT message, WPARAM isPath, LPARAM path) {
    const bool selects = message == BFFM_SETSELECTIONW && isPath;
    return asked += selects ? std::wstring(L" from ") + reinterpret_cast<const wchar_t*>(path) : L" ?", 0;
}

const std::wstring kLongest(259, L'x');

} // namespace

TEST(Launch, WhatTheSystemIsAsked) {
    const ReplacedImport start("CreateProcessW", reinterpret_cast<void*>(&Start));
    const ReplacedImport allow("AllowSetForegroundWindow", reinterpret_cast<void*>(&Allow));
    const ReplacedImport shell("ShellExecuteExW", reinterpret_cast<void*>(&AskShell));
    const ReplacedImport operate("SHFileOperationW", reinterpret_cast<void*>(&Operate));
    const ReplacedImport browse("SHBrowseForFolderW", reinterpret_cast<void*>(&Browse));
    const ReplacedImport send("SendMessageW", reinterpret_cast<void*>(&Send));
    constexpr DWORD kNoRights = 740;
    // clang-format off
    const struct {
        DWORD startError;
        bool (*act)();
        std::wstring asked;
        bool result;
    } rows[] = {
        {0,         [] { return OpenDocument(L"a b.pdf", {}, L"C:\\x y\\"), true; },              L"Open <\"C:\\x y\\a b.pdf\"> <-> as 1",        true },
        {0,         [] { return OpenDocument(L"V.exe", L"/MANAGER", L"C:\\"), true; },            L"Open <\"C:\\V.exe\"> </MANAGER> as 1",        true },
        {0,         [] { return RunProgram(L"V.exe", L" /A b", L"C:\\x y\\"), true; },            L"\"C:\\x y\\V.exe\" /A b as 1, front 7",       true },
        {2,         [] { return RunCommandLine(L"HH.exe"), true; },                               L"",                                            true }, // not there
        {kNoRights, [] { return RunProgram(L"V.exe", L" Mill 3 \"a\"", L"C:\\x y\\"), true; },    L"Open <C:\\x y\\V.exe> <Mill 3 \"a\"> as 1",   true },
        {kNoRights, [] { return RunCommandLine(L"HH.exe \"C:\\x y.chm::/t.htm\""), true; },       L"Open <HH.exe> <\"C:\\x y.chm::/t.htm\"> as 1", true },
        {kNoRights, [] { return RunCommandLine(L"\"V.exe"), true; },                              L"Open <V.exe> <-> as 1",                       true },
        {0,         [] { return CopyFiles({L"C:\\a\0C:\\b", 9}, L"D:\\", 0, nullptr); },          L"copy C:\\a C:\\b to D:\\ with 64",            true },
        {0,         [] { return CopyFiles(L"C:\\a", L"D:\\", FOF_SILENT, nullptr); },             L"copy C:\\a to D:\\ with 4",                   true },
        {0,         [] { return DeleteAnyFile(kLongest, FOF_SILENT, nullptr); },                  L"delete " + kLongest + L" to - with 68",       true },
        {0,         [] { return userRefuses = true, CopyFiles(L"C:\\a", L"D:\\", 0, nullptr); },  L"copy C:\\a to D:\\ with 64",                  false},
        // Of these some versions make something else, the current folder.
        {0,         [] { return DeleteAnyFile(L"", 0, nullptr); },                                L"",                                            false},
        {0,         [] { return CopyFiles(L"C:\\a" + (L'\0' + kLongest) + L"x", L"D:\\", 0, nullptr); }, L"",                                     false},
        {0,         [] { return CopyFiles(L"C:\\a", kLongest + L"x", 0, nullptr); },              L"",                                            false},
        {0,         [] { return BrowseForFolder(L"", GetDesktopWindow(), L"T", 65).empty(); },    L"T with 65 from C:\\",                         true },
        {0,         [] { return BrowseForFolder(L"D:\\", GetDesktopWindow(), L"", 0).empty(); },  L" with 0 from D:\\",                           true },
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.asked));
        startError = row.startError;
        userRefuses = false;
        asked.clear();
        std::thread([&] { EXPECT_EQ(row.act(), row.result); }).join(); // knows nothing of COM yet
        EXPECT_EQ(asked, row.asked);
    }
    EXPECT_FALSE(OpenEventW(SYNCHRONIZE, 0, kProcess) || OpenEventW(SYNCHRONIZE, 0, kThread)) << "leaked";
}
