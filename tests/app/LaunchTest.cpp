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
std::wstring asked; // what the shell was asked
bool isComBegun;    // at that moment
constexpr DWORD kWanted = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;

// NOLINTNEXTLINE(readability-function-size): as the system has it
BOOL WINAPI Start(LPCWSTR, LPWSTR line, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD, LPVOID,
                  LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
    line[0] = L'x'; // as the system may
    SetLastError(startError);
    return FALSE;
}

void NoteCom() {
    isComBegun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) == S_FALSE;
    CoUninitialize();
}

BOOL WINAPI AskShell(LPSHELLEXECUTEINFOW start) {
    NoteCom();
    const auto text = [](const wchar_t* given) { return given ? std::wstring(given) : L"-"; };
    asked = text(start->lpVerb) + L" <" + start->lpFile + L"> <" + text(start->lpParameters) + L"> in " +
            text(start->lpDirectory) + L" as " + std::to_wstring(start->nShow) +
            (start->fMask == kWanted ? L"" : L" other flags");
    return FALSE;
}

int WINAPI Operate(LPSHFILEOPSTRUCTW) { return NoteCom(), 1; }
LPITEMIDLIST WINAPI Browse(LPBROWSEINFOW) { return NoteCom(), nullptr; }

// In a thread that knows nothing of COM yet.
std::wstring AskedBy(void (*act)(), DWORD error = ERROR_SUCCESS) {
    startError = error;
    asked.clear();
    isComBegun = false;
    std::thread(act).join();
    return asked;
}

} // namespace

TEST(Launch, WhatTheShellIsAsked) {
    const ReplacedImport start("CreateProcessW", reinterpret_cast<void*>(&Start));
    const ReplacedImport shell("ShellExecuteExW", reinterpret_cast<void*>(&AskShell));
    // clang-format off
    const struct {
        void (*act)();
        const wchar_t* asked;
    } rows[] = {
        {[] { OpenDocument(L"a b.pdf", {}, L"C:\\x y\\"); },       L"Open <\"C:\\x y\\a b.pdf\"> <-> in - as 1"           },
        {[] { OpenDocument(L"V.exe", L"/MANAGER", L"C:\\"); },     L"Open <\"C:\\V.exe\"> </MANAGER> in - as 1"           },
        {[] { RunProgram(L"V.exe", {}, L"C:\\x y\\"); },           L"Open <C:\\x y\\V.exe> <-> in - as 1"                 },
        {[] { RunProgram(L"V.exe", L" Mill 3 \"a\"", L"C:\\"); },  L"Open <C:\\V.exe> <Mill 3 \"a\"> in - as 1"           },
        {[] { RunCommandLine(L"HH.exe \"C:\\x y.chm::/t.htm\""); }, L"Open <HH.exe> <\"C:\\x y.chm::/t.htm\"> in - as 1" },
        {[] { RunCommandLine(L"HH.exe"); },                        L"Open <HH.exe> <-> in - as 1"                        },
        {[] { RunCommandLine(L"\"V.exe"); },                       L"Open <V.exe> <-> in - as 1"                         },
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.asked)));
        EXPECT_EQ(AskedBy(row.act, 740), row.asked);
        EXPECT_TRUE(isComBegun);
    }
    EXPECT_EQ(AskedBy([] { RunCommandLine(L"HH.exe"); }, ERROR_FILE_NOT_FOUND), L"") << "missing: silent";
}

TEST(Launch, ComIsBegunBeforeTheShellActs) {
    const ReplacedImport operate("SHFileOperationW", reinterpret_cast<void*>(&Operate));
    const ReplacedImport browse("SHBrowseForFolderW", reinterpret_cast<void*>(&Browse));
    for (void (*act)() :
         {+[] { CopyFiles(L"C:\\a", L"C:\\b\\", 0, nullptr); }, +[] { DeleteAnyFile(L"C:\\a", 0, nullptr); },
          +[] { BrowseForFolder(L"", nullptr, L"", 0); }}) {
        AskedBy(act);
        EXPECT_TRUE(isComBegun);
    }
}
