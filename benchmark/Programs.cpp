#include "benchmark/Programs.h"

#include "benchmark/Clock.h"

#include <stdexcept>

namespace {

constexpr double kLongestStart_ms = 20000;
constexpr UINT kLongestAnswer_ms = 5000;

std::wstring CaptionOf(HWND window) {
    wchar_t text[256] = L"";
    GetWindowTextW(window, text, 256);
    return text;
}

bool HasReadyControl(HWND window, const Program& program) {
    if (!program.readyClass) return true;
    HWND control = nullptr;
    while ((control = FindWindowExW(window, control, program.readyClass, nullptr)) != nullptr) {
        if (program.readyText && CaptionOf(control) != program.readyText) continue;
        if (IsWindowVisible(control) && IsWindowEnabled(control)) return true;
    }
    return false;
}

BOOL CALLBACK NoteUnpainted(HWND window, LPARAM unpainted) {
    if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE))
        *reinterpret_cast<bool*>(unpainted) = true;
    return TRUE;
}

bool IsPainted(HWND window) {
    bool unpainted = false;
    NoteUnpainted(window, reinterpret_cast<LPARAM>(&unpainted));
    if (!unpainted) EnumChildWindows(window, NoteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
    return !unpainted;
}

bool Answers(HWND window) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kLongestAnswer_ms, &result) != 0;
}

} // namespace

Running::Running(const Program& program) {
    std::wstring commandLine = program.commandLine;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    const double begin = Now();
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process_))
        throw std::runtime_error(std::string("cannot start ") + program.name);
    for (;;) {
        window_ = FindWindow(program);
        if (window_ && IsWindowVisible(window_) && HasReadyControl(window_, program) && Answers(window_) &&
            IsPainted(window_))
            break;
        if (Now() - begin > kLongestStart_ms)
            throw std::runtime_error(std::string("no usable window: ") + program.name);
        Sleep(1);
    }
    startTime_ = Now() - begin;
}

HWND Running::FindWindow(const Program& program) const {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, program.windowClass, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process_.dwProcessId) return window;
    }
    return nullptr;
}

Running::~Running() {
    TerminateProcess(process_.hProcess, 0);
    WaitForSingleObject(process_.hProcess, INFINITE);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}
