#include "app/Launch.h"

#include "app/modLocations.h"
#include "win/Handles.h"

#include <windows.h>

#include <shellapi.h>

namespace {

std::wstring Quoted(const std::wstring& text) { return L'"' + text + L'"'; }

} // namespace

void RunCommandLine(std::wstring commandLine) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process))
        return;
    const win::UniqueKernelHandle thread(process.hThread);
    const win::UniqueKernelHandle started(process.hProcess);
    AllowSetForegroundWindow(process.dwProcessId);
}

void RunProgram(const std::wstring& file, const std::wstring& arguments) {
    RunCommandLine(Quoted(locations.ProgramFolder + file) + arguments);
}

void OpenDocument(const std::wstring& file, const std::wstring& arguments) {
    const std::wstring path = Quoted(locations.ProgramFolder + file);
    ShellExecuteW(nullptr, L"Open", path.c_str(), arguments.empty() ? nullptr : arguments.c_str(), nullptr,
                  SW_SHOWNORMAL);
}

void ShowHelpTopic(const std::wstring& helpFile, const std::wstring& topic) {
    RunCommandLine(L"HH.exe " + Quoted(locations.ProgramFolder + helpFile + L"::/" + topic));
}
