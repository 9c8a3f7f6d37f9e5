#include "tools/driver/RunningProgram.h"

#include "tools/driver/Windows.h"
#include "tools/driver/Words.h"
#include "win/Handles.h"

namespace {

// For one step. A machine that does many other things at the same time may need most of it; one on which
// nothing happens for so long has hung.
constexpr DWORD kPatience_ms = 90000;

} // namespace

RunningProgram::RunningProgram(std::wstring commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process_))
        Fail(L"cannot start " + commandLine);
}

RunningProgram::~RunningProgram() {
    if (IsRunning()) {
        TerminateProcess(process_.hProcess, 99);
        WaitForSingleObject(process_.hProcess, kPatience_ms);
    }
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

void RunningProgram::Until(const std::function<bool()>& condition, const std::wstring& wanted) const {
    for (const ULONGLONG start = GetTickCount64(); !condition(); Sleep(1))
        if (GetTickCount64() - start > kPatience_ms)
            Fail(L"waited in vain for: " + wanted + L"\n" + Describe());
}

int RunningProgram::WaitForExit() const {
    Until([this] { return !IsRunning(); }, L"the end of the program");
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
}

HWND RunningProgram::FindWindowOf(const std::wstring& className, const std::wstring& title, int child) const {
    for (HWND window : WindowsOf(ProcessId()))
        if ((className.empty() || ClassOf(window) == className) &&
            (title.empty() || TextOf(window) == title) && (child == 0 || GetDlgItem(window, child)))
            return window;
    return nullptr;
}

void RunningProgram::Load(const std::wstring& library) const {
    const std::size_t room = (library.size() + 1) * sizeof library[0];
    void* name = VirtualAllocEx(process_.hProcess, nullptr, room, MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process_.hProcess, name, library.c_str(), room, nullptr);
    // The system's own libraries lie at the same place in every process.
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
    const win::UniqueKernelHandle thread(
        CreateRemoteThread(process_.hProcess, nullptr, 0, load, name, 0, nullptr));
    if (!thread || WaitForSingleObject(thread.Get(), kPatience_ms) != WAIT_OBJECT_0)
        Fail(L"cannot load " + library);
}

std::wstring RunningProgram::Describe() const {
    std::wstring text = IsRunning() ? L"" : L"the program has ended\n";
    for (HWND window : WindowsOf(ProcessId()))
        text += ClassOf(window) + L" \"" + TextOf(window) + L"\"\n" + Contents(window);
    return text;
}
