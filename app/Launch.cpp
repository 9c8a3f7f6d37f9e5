#include "app/Launch.h"

#include "app/Suite.h"
#include "win/Com.h"
#include "win/Handles.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

namespace {

std::wstring Quoted(const std::wstring& text) { return L'"' + text + L'"'; }

// The shell shows no box of its own when that fails, but asks for other rights where they are needed. The
// start is complete at the return: the program may end right after it.
void OpenByShell(const std::wstring& file, const std::wstring& parameters) {
    StartOle();
    SHELLEXECUTEINFOW start{};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    start.hwnd = GetActiveWindow(); // else Windows may ask behind it
    start.lpVerb = L"Open";
    start.lpFile = file.c_str();
    start.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
    start.nShow = SW_SHOWNORMAL;
    ShellExecuteExW(&start);
}

// A program that wants an administrator's rights is none that CreateProcess can start.
void StartByShell(const std::wstring& commandLine) {
    const bool isQuoted = commandLine.starts_with(L'"');
    const std::size_t end = std::min(commandLine.find(isQuoted ? L'"' : L' ', 1), commandLine.size());
    const std::size_t rest = commandLine.find_first_not_of(L' ', end + isQuoted);
    OpenByShell(commandLine.substr(isQuoted, end - isQuoted),
                commandLine.substr(std::min(rest, commandLine.size())));
}

} // namespace

void RunCommandLine(const std::wstring& commandLine) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    std::wstring writable = commandLine; // the system writes into it
    if (!CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process)) {
        constexpr DWORD kElevationRequired = 740; // missing in the headers of some compilers
        if (GetLastError() == kElevationRequired) StartByShell(commandLine);
        return;
    }
    const win::UniqueKernelHandle thread(process.hThread);
    const win::UniqueKernelHandle started(process.hProcess);
    // Else its window may only flash in the task bar: the focus is this program's to give.
    AllowSetForegroundWindow(process.dwProcessId);
}

// Quotation marks, blanks or not: without them Windows would first try what stands before the first blank.
void RunProgram(const std::wstring& file, const std::wstring& arguments, const std::wstring& folder) {
    RunCommandLine(Quoted(folder + file) + arguments);
}

void OpenDocument(const std::wstring& file, const std::wstring& arguments, const std::wstring& folder) {
    OpenByShell(Quoted(folder + file), arguments);
}

// The viewer is the system's and goes without a folder. Topics have blanks, too: one pair of marks for both.
void ShowHelpTopic(const std::wstring& helpFile, const std::wstring& topic, const std::wstring& folder) {
    RunCommandLine(suite::kHelpViewer + (L" " + Quoted(folder + helpFile + L"::/" + topic)));
}
